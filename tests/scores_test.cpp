#include <gtest/gtest.h>

#include <set>
#include <sstream>

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
        EXPECT_EQ(form.rows[19], (ScoreCells{" 20"}));
        if (form.rows[0] == ScoreCells{" 1"}) return 0;
        EXPECT_EQ(form.rows[1], (ScoreCells{" 2", "", "-3", ""}));
        return std::stoi(form.rows[0][2]) - 1000;
    }

    HeadlessTable table;
    Game& game = table.game;
    NumberedScores* scores = nullptr;
    ScoresForm form;
};

TEST(Scores, OpenAtTheFileOfTheVariant) {
    for (int variant = 0; variant < 4; ++variant) {
        Hall hall({.NumberOfDice = variant & 1 ? 4 : 5, .NumberOfColumns = variant & 2 ? 1 : 4});
        hall.Open();
        EXPECT_TRUE(hall.form.tab == variant && hall.Listed() == variant + 1);
        EXPECT_TRUE(hall.form.cmdClearTableEnabled && !hall.form.lblScoreVisible && !hall.form.fullRowSelect);
    }
}

TEST(Scores, TellHowTheGameCameOut) {
    for (int position : {-1, 20, 21}) {
        Hall hall;
        hall.game.session.ShowScoreResult = hall.game.session.SoundOn = true;
        hall.game.session.LastScorePosition = position;
        hall.Open();
        const bool placed = position == 20;
        EXPECT_EQ(hall.form.lblScore.find("position #20.") != std::string::npos, placed);
        EXPECT_TRUE(hall.form.lblScoreVisible && hall.form.fullRowSelect == placed);
        EXPECT_EQ(hall.form.selectedRow, placed ? position : 0);
        EXPECT_NE(hall.Log().find(placed ? "GameOver2" : "GameOver1"), std::string::npos);
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
        {"k2 m2", 3, true, {1, 3, 4}, ""},
        {"m1 c", 0, true, {1, 3, 4}, empty},
        {"n", 1, true, {1, 3, 4}, ask + "cancel;"},
        {"c", 0, false, {3, 4}, ask + "ok;"},
        {"c m2", 3, true, {3, 4}, ask + "ok;"},
        {"c m2 m0 c", 0, true, {3, 4}, ask + "ok;" + empty},
        {"k2 c", 0, false, {1, 4}, ask + "ok;"},  // the tab counts, not what is listed
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
        EXPECT_EQ(std::pair(hall.Listed(), hall.Log()), std::pair(-1, told));
        cmdClearTable_Click(hall.game, hall.form);
        EXPECT_EQ(hall.Log(), "message Delete Scores?|Delete top 20 Scores?|question|ok;" + told);
    }
}

}  // namespace
