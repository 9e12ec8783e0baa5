#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "core/program_folder.h"
#include "dialogs/scores_form.h"
#include "script/headless_table.h"

namespace {

// Files of which each holds scores that tell its number, and which can be made to fail.
struct NumberedScores final : SilentScores {
    std::set<int> files{1, 2, 3, 4};
    int failure = 0;  // the error number of whatever touches a file

    bool TopScoreFileExists(int number) override { return files.contains(number); }
    ScoreTable LoadTopScores(int number) override {
        FailIfTold();
        ScoreTable table;
        table[0] = {"Ann", 1000 + number, "2/1/2003"};
        table[1] = {"", -3, ""};
        return table;
    }
    void DeleteTopScores(int number) override {
        FailIfTold();
        files.erase(number);
    }
    void FailIfTold() const {
        if (failure) throw ScoreFileError(failure, "No luck", "F");
    }
};

struct Hall {
    explicit Hall(const GameSettings& settings = {}) : table(settings) {
        auto kept = std::make_unique<NumberedScores>();
        scores = kept.get();
        table.scores.Keep(std::move(kept));
        game.session.AppPath = "A/";
    }
    void Open() { form = frmScores2_Load(game); }
    std::string Log() {
        std::string joined;
        for (const std::string& line : std::exchange(table.log, {})) joined += line + ';';
        return joined;
    }
    // Which file is listed: 0 for the twenty empty rows, -1 for none.
    int Listed() const {
        if (form.rows.empty()) return -1;
        EXPECT_EQ(form.rows.size(), 20U);
        for (std::size_t i = 0; i < form.rows.size(); ++i)
            EXPECT_EQ(form.rows[i][0], ' ' + std::to_string(i + 1)) << "place " << i;
        EXPECT_EQ(form.rows[19], (ScoreCells{" 20"}));
        if (form.rows[0] == ScoreCells{" 1"}) return 0;
        EXPECT_EQ(form.rows[1], (ScoreCells{" 2", "", "-3", ""}));
        EXPECT_EQ(form.rows[0][1] + form.rows[0][3], "Ann2/1/2003");
        return std::stoi(form.rows[0][2]) - 1000;
    }

    HeadlessTable table;
    Game& game = table.game;
    NumberedScores* scores = nullptr;
    ScoresForm form;
};

TEST(Scores, OpenAtTheFileOfTheVariant) {
    for (int variant = 0; variant < 16; ++variant) {
        const bool exists = variant & 4, grid = variant & 8;
        Hall hall({.NumberOfDice = variant & 1 ? 4 : 5, .NumberOfColumns = variant & 2 ? 1 : 4, .ShowGridLines = grid});
        const int number = variant % 4 + 1;
        if (!exists) hall.scores->files.erase(number);
        hall.Open();
        EXPECT_EQ(hall.form.tab, number - 1);
        EXPECT_EQ(hall.Listed(), exists ? number : 0);
        EXPECT_TRUE(hall.form.cmdClearTableEnabled && hall.form.Check1 == grid && !hall.form.lblScoreVisible);
        EXPECT_TRUE(hall.form.selectedRow == 0 && !hall.form.fullRowSelect);
        hall.form.Check1 = !grid;
        frmScores2_Unload(hall.game, hall.form);
        EXPECT_TRUE(hall.game.settings.ShowGridLines != grid && hall.Log().empty());
    }
}

TEST(Scores, TellHowTheGameCameOut) {
    for (int position : {-1, 0, 1, 20, 21})
        for (int silence = 0; silence < 4; ++silence)
            for (int failure : {0, 70}) {
                Hall hall;
                hall.game.session.ShowScoreResult = true;
                hall.game.session.LastScorePosition = position;
                hall.game.session.LastFinalScore = -12;
                hall.game.session.SoundOn = !(silence & 1);
                hall.game.session.RedoInProgress = silence & 2;
                hall.scores->failure = failure;
                hall.Open();
                const bool placed = position == 1 || position == 20;
                const std::string begin = "  Your score of  -12 points was ";
                EXPECT_EQ(hall.form.lblScore, placed
                                                  ? begin + "good enough to get on the \r\n   top scores table at " +
                                                        "position #" + std::to_string(position) + "."
                                                  : begin + "not good enough to get on the  \r\n   top scores table.");
                EXPECT_TRUE(hall.form.lblScoreVisible && hall.form.fullRowSelect == placed);
                EXPECT_EQ(hall.form.selectedRow, placed && !failure ? position : 0);
                const std::string play = "media open \"" +
                                         ProgramFile(hall.game.session.AppPath, {"LCWAVS", "GameOver"}) +
                                         (placed ? '2' : '1') + ".mp3\" alias song;media play song;";
                EXPECT_EQ(hall.Log(), (placed || !silence ? "media close song;" : "") + (silence ? "" : play));
            }
}

// What a player does, one after the other, and what then is listed. m and k change to the tab 0 to 3 by mouse and by
// keyboard, c clears the table, n wants to and cancels.
TEST(Scores, FollowTabsAndClearing) {
    const std::string empty = "message LuckyCup|Table is Empty!|warning|ok;";
    const std::string ask = "message Delete Scores?|Delete top 20 Scores?|question|";
    struct {
        std::string what;
        int listed;
        bool mayClear;
        std::set<int> files;
        std::string log;
    } const cases[] = {
        {"k1", 1, true, {1, 3, 4}, ""},
        {"m1", 0, true, {1, 3, 4}, ""},
        {"m3", 4, true, {1, 3, 4}, ""},
        {"k2 k3", 1, true, {1, 3, 4}, ""},
        {"k2 m2", 3, true, {1, 3, 4}, ""},
        {"m0", 1, true, {1, 3, 4}, ""},
        {"m0 k2", 3, true, {1, 3, 4}, ""},
        {"m1 c", 0, true, {1, 3, 4}, empty},
        {"n", 1, true, {1, 3, 4}, ask + "cancel;"},
        {"c", 0, false, {3, 4}, ask + "ok;"},
        {"c k1", 0, false, {3, 4}, ask + "ok;"},
        {"c m0", 0, false, {3, 4}, ask + "ok;"},
        {"c m2", 3, true, {3, 4}, ask + "ok;"},
        {"c m2 m0 c", 0, true, {3, 4}, ask + "ok;" + empty},
        {"k2 c", 0, false, {1, 4}, ask + "ok;"},  // the tab counts, not what is listed
        {"k2 n", 1, true, {1, 3, 4}, ask + "cancel;"},
    };
    for (const auto& [what, listed, mayClear, files, log] : cases) {
        SCOPED_TRACE(what);
        Hall hall;
        hall.scores->files.erase(2);
        hall.Open();
        hall.form.selectedRow = 1;
        bool fresh = false;
        std::istringstream words(what);
        for (std::string word; words >> word;) {
            if (word == "n") hall.table.dialogs.answers = {HeadlessAnswer::Cancel};
            if (word.size() == 1) {
                fresh |= cmdClearTable_Click(hall.game, hall.form);
                continue;
            }
            const int tab = word[1] - '0';
            if (word[0] == 'm') fresh |= SSTab1_MouseDown(hall.game, hall.form, tab);
            if (tab != hall.form.tab) fresh |= SSTab1_Click(hall.game, hall.form, tab);
        }
        EXPECT_EQ(hall.Listed(), listed);
        EXPECT_EQ(hall.form.cmdClearTableEnabled, mayClear);
        EXPECT_EQ(hall.scores->files, files);
        EXPECT_EQ(hall.Log(), log);
        EXPECT_EQ(hall.form.selectedRow, fresh ? 0 : 1);
    }
}

TEST(Scores, SurviveAFileThatFails) {
    for (int failure : {53, 70}) {
        const std::string told = failure == 53 ? "message Open scores|53No luckCannot open F|information|ok;" : "";
        Hall hall;
        hall.scores->failure = failure;
        hall.Open();
        EXPECT_EQ(std::pair(hall.Listed(), hall.Log()), std::pair(-1, told)) << "at load";
        EXPECT_TRUE(hall.form.tab == 0 && hall.form.cmdClearTableEnabled);
        SSTab1_MouseDown(hall.game, hall.form, 1);
        SSTab1_Click(hall.game, hall.form, 1);
        EXPECT_EQ(std::pair(hall.Listed(), hall.Log()), std::pair(-1, told)) << "at a tab";
        hall.scores->failure = 0;
        SSTab1_Click(hall.game, hall.form, 2);
        EXPECT_EQ(hall.Listed(), 3);
        hall.scores->failure = failure;
        cmdClearTable_Click(hall.game, hall.form);
        EXPECT_EQ(hall.Log(), "message Delete Scores?|Delete top 20 Scores?|question|ok;" + told);
        EXPECT_TRUE(hall.Listed() == 3 && hall.form.cmdClearTableEnabled);
    }
}

}  // namespace
