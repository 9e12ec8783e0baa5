#include "dialogs/score_result.h"

#include "core/music.h"
#include "core/program_folder.h"
#include "core/top_scores.h"

std::string ScoreResultText(const Game& game) {
    const std::string points = "  Your score of  " + std::to_string(game.session.LastFinalScore) + " points was ";
    if (!ReachedTopScores(game.session)) return points + "not good enough to get on the  \r\n   top scores table.";
    return points + "good enough to get on the \r\n   top scores table at position #" +
           std::to_string(game.session.LastScorePosition) + ".";
}

void PlayScoreResultJingle(Game& game) {
    const bool reached = ReachedTopScores(game.session);
    const bool sounds = game.session.SoundOn && !game.session.RedoInProgress;
    if (reached || sounds) CloseSong(game);
    if (!sounds) return;
    const std::string jingle =
        ProgramFile(game.session.AppPath, {"LCWAVS", reached ? "GameOver2.mp3" : "GameOver1.mp3"});
    game.media.Send("open \"" + jingle + "\" alias song");
    game.media.Send("play song");
}
