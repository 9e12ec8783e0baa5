#include "core/top_scores.h"

int ScoreFileNumber(const GameSettings& settings) {
    const int firstOfType = FourColumns(settings) ? 1 : 3;
    return FiveDice(settings) ? firstOfType + 1 : firstOfType;
}

bool RecordTopScore(Game& game, int finalScore, const std::string& playerName) {
    const int number = ScoreFileNumber(game.settings);
    game.session.LastFinalScore = finalScore;
    try {
        game.session.LastScorePosition = game.scores.Record(number, {playerName, finalScore, game.clock.ShortDate()});
        return true;
    } catch (const ScoreFileError& error) {
        ShowScoreFileError(game, error);
        return false;
    }
}

bool ReachedTopScores(const GameSession& session) {
    return session.LastScorePosition >= 1 && session.LastScorePosition <= scoreRecords;
}

void ShowScoreFileError(Game& game, const ScoreFileError& error) {
    if (error.code != fileNotFound) return;
    game.dialogs.ShowMessage({"Open scores", std::to_string(error.code) + error.what() + "Cannot open " + error.path,
                              MessageIcon::Information, MessageButtons::Ok});
}
