#include "dialogs/scores_form.h"

#include "core/music.h"
#include "core/program_folder.h"
#include "core/top_scores.h"

namespace {

// A message box that names no title has the program's.
constexpr const char* defaultTitle = "LuckyCup";

int FileOf(int tab) { return tab + 1; }

std::string PlaceText(int place) { return ' ' + std::to_string(place); }

void ClearRows(ScoresForm& form) {
    form.rows.clear();
    form.selectedRow = 0;
}

void ShowEmptyTopScores(ScoresForm& form) {
    ClearRows(form);
    for (int place = 1; place <= scoreRecords; ++place) form.rows.push_back({PlaceText(place)});
}

// A file that fails leaves no row behind.
void LoadTopScores(Game& game, ScoresForm& form, int number) {
    ClearRows(form);
    try {
        for (const ScoreRecord& record : game.scores.LoadTopScores(number)) {
            const std::string score = record.Score == unusedScore ? "" : std::to_string(record.Score);
            const int place = static_cast<int>(form.rows.size()) + 1;
            form.rows.push_back({PlaceText(place), record.PlayerName, score, record.GameDate});
        }
    } catch (const ScoreFileError& error) {
        ShowScoreFileError(game, error);
    }
}

void ShowFile(Game& game, ScoresForm& form, int number) {
    form.fileOnShow = number;
    if (game.scores.TopScoreFileExists(number))
        LoadTopScores(game, form, number);
    else
        ShowEmptyTopScores(form);
}

std::string ScoreResultText(const Game& game) {
    const std::string points = "  Your score of  " + std::to_string(game.session.LastFinalScore) + " points was ";
    if (!ReachedTopScores(game.session)) return points + "not good enough to get on the  \r\n   top scores table.";
    return points + "good enough to get on the \r\n   top scores table at position #" +
           std::to_string(game.session.LastScorePosition) + ".";
}

bool JingleSounds(const Game& game) { return game.session.SoundOn && !game.session.RedoInProgress; }

void PlayJingle(Game& game, std::string_view name) {
    PlaySong(game, ProgramFile(game.session.AppPath, {"LCWAVS", name}));
}

void ShowMissed(Game& game, ScoresForm& form) {
    form.lblScore = ScoreResultText(game);
    if (!JingleSounds(game)) return;
    CloseSong(game);
    PlayJingle(game, "GameOver1.mp3");
}

void ShowReached(Game& game, ScoresForm& form) {
    CloseSong(game);
    form.fullRowSelect = true;
    if (!form.rows.empty()) form.selectedRow = game.session.LastScorePosition;
    form.lblScore = ScoreResultText(game);
    if (JingleSounds(game)) PlayJingle(game, "GameOver2.mp3");
}

}  // namespace

ScoresForm frmScores2_Load(Game& game) {
    ScoresForm form;
    const int scoreFileNumber = ScoreFileNumber(game.settings);
    form.Check1 = game.settings.ShowGridLines;
    ShowFile(game, form, scoreFileNumber);
    form.tab = scoreFileNumber - 1;
    form.lblScoreVisible = game.session.ShowScoreResult;
    if (!form.lblScoreVisible) return form;
    if (ReachedTopScores(game.session))
        ShowReached(game, form);
    else
        ShowMissed(game, form);
    return form;
}

bool SSTab1_MouseDown(Game& game, ScoresForm& form, int tab) {
    form.IgnoreTabClick = false;
    // The keyboard may have gone to this tab and left the rows as they were. The first click counts there as well.
    const bool leftBehind = tab == form.tab && FileOf(tab) != form.fileOnShow;
    return leftBehind && SSTab1_Click(game, form, tab);
}

bool SSTab1_Click(Game& game, ScoresForm& form, int tab) {
    form.tab = tab;
    if (form.IgnoreTabClick) return false;
    form.cmdClearTableEnabled = true;
    ShowFile(game, form, FileOf(tab));
    return true;
}

bool cmdClearTable_Click(Game& game, ScoresForm& form) {
    const int number = FileOf(form.tab);
    if (!game.scores.TopScoreFileExists(number)) {
        game.dialogs.ShowMessage({defaultTitle, "Table is Empty!", MessageIcon::Warning, MessageButtons::Ok});
        return false;
    }
    const Message question{"Delete Scores?", "Delete top 20 Scores?", MessageIcon::Question, MessageButtons::OkCancel};
    if (game.dialogs.ShowMessage(question) != Answer::Ok) return false;
    try {
        game.scores.DeleteTopScores(number);
    } catch (const ScoreFileError& error) {
        ShowScoreFileError(game, error);
        return false;
    }
    form.fileOnShow = number;
    ShowEmptyTopScores(form);
    form.cmdClearTableEnabled = false;
    return true;
}

void frmScores2_Unload(Game& game, const ScoresForm& form) { game.settings.ShowGridLines = form.Check1; }
