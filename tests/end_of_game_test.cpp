#include "core/end_of_game.h"

#include <functional>

#include "tests/table_driver.h"

namespace {

// Score files that place a score as the test says.
struct TopScoresOf final : TopScores {
    explicit TopScoresOf(std::function<int()> place) : Place(std::move(place)) {}
    int Record(int, const ScoreRecord&) override { return Place(); }
    bool TopScoreFileExists(int) override { return false; }
    std::array<ScoreRecord, scoreRecords> LoadTopScores(int) override { return {}; }
    void DeleteTopScores(int) override {}

    std::function<int()> Place;
};

struct LastBox {
    int columns;
    std::string event;
    const char* scoring;
    const char* failing;  // null where every roll scores, which leaves the total as it is
};

const LastBox lastBoxes[] = {
    {4, "box 1 12", " 6 6 6 6 6 6", " 1 2 3 4 5 6"}, {4, "box 2 0", " 1 1 1 1 1 1", " 6 6 6 6 6 6"},
    {4, "box 3 10", " 1 2 3 4 5 6", " 6 6 6 6 6 6"}, {4, "box 3 1", " 2 2 2 2 2 2", " 6 6 6 6 6 6"},
    {4, "box 4 12", " 5 5 5 5 5 5", " 1 2 3 4 5 6"}, {4, "box 4 0", " 1 1 1 1 1 1", " 6 6 6 6 6 6"},
    {1, "box 3 9", " 2 2 2 3 3 3", " 6 6 6 6 6 6"},  {1, "box 3 6", " 1 1 1 1 1 1", nullptr},
    {4, "box 4 7", " 1 1 1 1 1 1", nullptr},
};

// A game before the last box of each player, all others of which are written from rolls of sixes.
struct EndingGame : PlayedTable {
    EndingGame(int number, const LastBox& last, bool music = false)
        : PlayedTable({.NumberOfPlayers = number, .NumberOfColumns = last.columns, .BGMusicEnabled = music}),
          box(last),
          players(number) {
        table.scores.Keep(std::make_unique<TopScoresOf>([this] { return place(); }));
        for (int turn = players * (BoardSize(game.settings) - 1); turn > 0; --turn) {
            Roll(" 6 6 6 6 6 6");
            const auto open = OpenEvents();
            const auto event = std::ranges::find_if(open, [this](auto& e) { return e[0] == 'b' && e != box.event; });
            Do(*event);
            if (game.session.Announced) Do(*event);
            Takes("tick tmrCounter");
        }
    }

    void Roll(const std::string& faces) { Do((game.table.nextPlayer ? "next" : "roll") + faces); }

    // The player on move writes the last box.
    void Finish() {
        for (int roll = 1; roll <= rolls; ++roll) Roll(scores ? box.scoring : box.failing);
        if (rolls < 3 || !oblg) Do(box.event);
    }

    // All from the sound of the placement on, but for the painting of the counter.
    std::string Ending() const {
        std::string text;
        for (const std::string& entry : table.log)
            if (entry.starts_with("effect-wait"))
                text = entry + ';';
            else if (!entry.starts_with("sleep") && !entry.starts_with("refresh"))
                text += entry + ';';
        return text;
    }

    std::string ExpectedEnding() const {
        std::string text = scores ? "effect-wait score;" : "effect-wait scoreZero;";
        const bool countsAtOnce = rolls == 3 || (players == 1 && box.columns == 4);
        if (countsAtOnce && scores && box.failing != nullptr) text += "effect counter7;effect counter0;";
        if (undone) return text + "dialog frmEndGame|undo;effect undo;";
        if (rolls < 3) text += "dialog frmEndGame|finish;";
        text += (box.columns == 4 ? "record 1|" : "record 3|") + std::to_string(game.session.Total) +
                (second ? "|Player 2|" : "|Player 1|") + std::to_string(placed) + ';';
        const std::string jingle =
            game.session.AppPath + (placed > 0 ? "LCWAVS/GameOver2.mp3" : "LCWAVS/GameOver1.mp3");
        if (players == 1 || placed > 0)
            text += "media close song;media open \"" + jingle + "\" alias song;media play song;dialog frmScores2;";
        if (!second) return text;
        const bool draw = game.session.FinalScore1 == game.session.Total;
        return text + (draw ? "effect draw;" : "effect applause;") + "dialog frmTheWinerIs;";
    }

    // What the player has in hand, and the flags.
    std::string Words() const {
        const TableState& shown = game.table;
        std::string words;
        const auto add = [&](bool holds, const char* word) { words += holds ? word : ""; };
        add(shown.roll.enabled, "roll ");
        add(shown.roll.picture == RollPicture::Off, "off ");
        for (const std::string& event : OpenEvents()) add(event == box.event, "box ");
        add(std::ranges::any_of(shown.dice, &DieState::enabled), "dice ");
        add(shown.nextPlayer, "next ");
        add(shown.showBoard.visible && shown.showBoard.enabled, "board ");
        add(shown.undo, "undo ");
        add(shown.redo, "redo ");
        add(game.session.GameInProgress, "progress ");
        add(game.session.GameOverShown, "over ");
        add(game.session.EndGameSeen, "seen ");
        add(shown[Timer::tmrCounter].enabled, "counter ");
        add(shown[Timer::tmrGameOver].enabled, "message ");
        return words;
    }

    std::string ExpectedWords() const {
        // After one roll the box stands announced again, and the counter waits for it to be written.
        const bool counts = players == 2 || box.columns == 1 || (oblg ? rolls == 2 : scores);
        const std::string counter = rolls < 3 ? "counter " : "";
        if (undone) return std::string("roll box dice progress seen ") + (counts ? "counter " : "");
        if (second) return "roll off board progress over seen " + counter + "message ";
        if (players == 2)
            return std::string("roll next ") + (oblg && rolls < 3 ? "undo " : "") + "seen " +
                   (oblg ? "counter " : counter);
        return std::string("off progress over ") + (rolls < 3 ? "seen " : "") + (box.columns == 1 ? counter : "") +
               "message ";
    }

    void Check() const {
        EXPECT_EQ(Ending(), ExpectedEnding());
        EXPECT_EQ(Words(), ExpectedWords());
    }

    void FinishAndCheck() {
        if (undone) table.dialogs.answers = {HeadlessAnswer::Undo};
        Finish();
        Check();
        if (!std::exchange(undone, false)) return;
        Takes("tick tmrCounter");
        Do(box.event);
        Check();
    }

    const LastBox box;
    const int players;
    const bool oblg = box.event.starts_with("box 4");
    int rolls = 3;
    int placed = 1;
    bool second = false;  // of two players
    bool scores = true;   // the last box is worth something
    bool undone = false;  // the player takes it back when asked
    std::function<int()> place = [this] { return placed; };
};

TEST(EndOfGame, EachPathWithEachKindOfLastBox) {
    for (const LastBox& box : lastBoxes)
        for (int variant = 0; variant < 40; ++variant) {
            EndingGame ending(variant % 2 + 1, box);
            SCOPED_TRACE(box.event + " variant " + std::to_string(variant));
            ending.scores = variant / 2 % 2 == 0 || box.failing == nullptr;
            ending.placed = variant / 4 % 2 == 0 ? 20 : -1;
            ending.rolls = std::array{1, 2, 3, 1, 2}[variant / 8];
            ending.undone = variant / 8 >= 3;
            const bool undone = ending.undone;
            ending.FinishAndCheck();
            if (ending.players == 1) continue;
            EXPECT_EQ(ending.game.session.FinalScore1, ending.game.session.Total);
            ending.Takes("tick tmrCounter");
            ending.second = true;
            ending.scores = !ending.scores || box.failing == nullptr;
            ending.undone = undone;
            ending.FinishAndCheck();
            EXPECT_EQ(ending.game.session.FinalScore2, ending.game.session.Total);
        }
}

TEST(EndOfGame, StepsOfGameOver) {
    EndingGame ending(1, lastBoxes[2], true);
    ending.place = [&] {
        EXPECT_EQ(ending.game.table.Panel(2).text, " ");
        EXPECT_FALSE(ending.game.session.GameInProgress || ending.game.table[Timer::Timer3].enabled);
        return 1;
    };
    ending.Finish();
    EXPECT_NE(ending.Ending().find("effect counter0;media close myMP3;record 1|"), std::string::npos);
    EXPECT_EQ(ending.game.table.Panel(2).text, "");
    EXPECT_TRUE(ending.game.session.OpenedFromGame && ending.game.session.ShowScoreResult);
    EXPECT_TRUE(ending.game.table[Timer::Timer4].enabled);
    EXPECT_EQ(ending.game.table[Timer::tmrGameOver].interval, 1);
    EXPECT_EQ(ending.game.session.GameOverText, std::string(50, ' ') + "G a m e  O v e r !" + std::string(28, ' ') +
                                                    "To begin a new game click the 'New Game' button or press F2");
}

TEST(EndOfGame, FailingScoreFileLetsNewGameWorkAtOnce) {
    for (const int players : {1, 2})
        for (const int code : {53, 70}) {
            EndingGame ending(players, lastBoxes[0]);
            ending.place = [&]() -> int { throw ScoreFileError(code, "File not found", "x.dat"); };
            for (int player = 1; player <= players; ++player) {
                ending.Finish();
                const std::string told = "message Open scores|53File not foundCannot open x.dat|information|ok;";
                EXPECT_EQ(ending.Ending(), "effect-wait score;effect counter7;effect counter0;record-failed 1;" +
                                               (code == 53 ? told : ""));
                EXPECT_EQ(ending.Words(), players == 1  ? "roll progress "
                                          : player == 1 ? "roll next progress seen "
                                                        : "roll progress seen ");
            }
            ending.Do("new");
            EXPECT_EQ(ending.table.log[0], "message Confirm|Quit this Game?|question|ok");
            EXPECT_EQ(ending.game.session.BoxesFilled, 0);
        }
}

TEST(EndOfGame, TheWinner) {
    struct Case {
        int first, second;
        const char *verdict, *sound;
    };
    for (const Case& c :
         {Case{-5, 0, " Bo  Wins!", "effect applause"}, Case{1000, 999, "Ann   Wins!", "effect applause"},
          Case{0, 0, "It's a Draw!", "effect draw"}}) {
        PlayedTable played({.Player1 = "Ann  ", .Player2 = " Bo "});
        played.game.session.FinalScore1 = c.first;
        played.game.session.FinalScore2 = c.second;
        for (const bool sound : {true, false}) {
            played.Do(sound ? "state" : "sounds off");
            const WinnerTexts texts = frmTheWinerIs_Load(played.game);
            EXPECT_EQ(texts.lblPlayer1 + texts.lblScore1, "Ann's Total Score:" + std::to_string(c.first));
            EXPECT_EQ(texts.lblPlayer2 + texts.lblScore2, " Bo's Total Score:" + std::to_string(c.second));
            EXPECT_EQ(texts.lblWiner, c.verdict);
            EXPECT_EQ(played.table.log, sound ? std::vector<std::string>{c.sound} : std::vector<std::string>{});
        }
    }
}

}  // namespace
