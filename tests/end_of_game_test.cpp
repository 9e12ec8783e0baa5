#include "core/end_of_game.h"

#include "tests/state_differences.h"

namespace {

// Score files that do as the test says.
struct TopScoresOf final : TopScores {
    explicit TopScoresOf(std::function<int()> record) : recorded(std::move(record)) {}
    int Record(int, const ScoreRecord&) override { return recorded(); }
    bool TopScoreFileExists(int) override { return false; }
    std::array<ScoreRecord, scoreRecords> LoadTopScores(int) override { return {}; }
    void DeleteTopScores(int) override {}
    std::function<int()> recorded;
};

struct LastBox {
    int columns;
    std::string event, scoring, failing;
    bool rises = true;  // the total, when the box scores
};

const std::string sixes = " 6 6 6 6 6 6", ones = " 1 1 1 1 1 1", straight = " 1 2 3 4 5 6";
const LastBox lastBoxes[] = {
    {4, "box 1 12", sixes, straight}, {4, "box 2 0", ones, sixes},       {4, "box 3 10", straight, sixes},
    {4, "box 3 0", ones, sixes},      {4, "box 4 12", sixes, straight},  {4, "box 4 0", ones, sixes},
    {1, "box 3 10", straight, sixes}, {1, "box 3 6", ones, ones, false}, {4, "box 4 7", ones, ones, false}};

// A game before the last box of each player, all others of which are written from rolls of sixes.
struct EndingGame : PlayedTable {
    EndingGame(int number, const LastBox& box, bool withMusic)
        : PlayedTable({.NumberOfPlayers = number, .NumberOfColumns = box.columns, .BGMusicEnabled = withMusic}),
          last(box) {
        table.scores.Keep(std::make_unique<TopScoresOf>([this] { return record(); }));
        for (int turn = number * (BoardSize(game.settings) - 1); turn > 0; --turn) {
            Roll(sixes);
            const auto open = OpenEvents();
            const auto event = std::ranges::find_if(open, [this](auto& e) { return e[0] == 'b' && e != last.event; });
            Do(*event);
            if (game.session.Announced) Do(*event);
            Takes("tick tmrCounter");
        }
    }

    void Roll(const std::string& faces) { Do((game.table.nextPlayer ? "next" : "roll") + faces); }

    // The player on move writes the last box.
    void Finish() {
        for (int roll = 1; roll <= rolls; ++roll) Roll(scores ? last.scoring : last.failing);
        if (rolls < 3 || !oblg) Do(last.event);
    }

    // All that happened from the sound of the placement on, but for the painting of the counter, and what is on then.
    std::string Outcome() const {
        const TableState& shown = game.table;
        const GameSession& session = game.session;
        const bool box = std::ranges::count(OpenEvents(), last.event) > 0;
        const bool dice = std::ranges::any_of(shown.dice, &DieState::enabled);
        const auto starts = [](std::string_view text) { return [=](auto& entry) { return entry.starts_with(text); }; };
        std::vector<std::string> log(std::ranges::find_if(table.log, starts("effect-wait")), table.log.end());
        std::erase_if(log, starts("sleep"));
        std::erase_if(log, starts("refresh"));
        return Shortened(log) + ": " + (box ? "box " : "") + (dice ? "dice " : "") +
               (shown.roll.enabled ? "roll " : "") + (shown.roll.picture == RollPicture::Off ? "off " : "") +
               (shown.nextPlayer ? "next " : "") +
               (shown.showBoard.visible && shown.showBoard.enabled ? "board " : "") + (shown.undo ? "undo " : "") +
               (shown.redo ? "redo " : "") + (session.GameInProgress ? "progress " : "") +
               (session.GameOverShown ? "over " : "") + (session.EndGameSeen ? "seen " : "") +
               (shown.timers[Timer::tmrCounter].enabled ? "counter " : "") +
               (shown.timers[Timer::tmrGameOver].enabled ? "message " : "") +
               (shown.timers[Timer::Timer4].enabled ? "intro " : "");
    }

    std::string Expected() const {
        const bool asked = rolls < 3, countsAtOnce = !asked || (!two && last.columns == 4);
        std::string log = scores || !last.rises ? "effect-wait score" : "effect-wait scoreZero";
        if (countsAtOnce && scores && last.rises) log += ", effect counter7, effect counter0";
        // After one roll an announced box stands announced again, and the counter waits for it to be written.
        const bool counts = two || last.columns == 1 || (oblg ? rolls == 2 : scores || !last.rises);
        if (undone)
            return log + ", dialog frmEndGame|undo, effect undo: box dice roll progress seen " +
                   (counts ? "counter " : "");
        if (asked) log += ", dialog frmEndGame|finish";
        if (music) log += ", media close myMP3";
        log += (last.columns == 4 ? ", record 1|" : ", record 3|") + std::to_string(game.session.Total) +
               (second ? "|Player 2|" : "|Player 1|") + std::to_string(place);
        if (!two || place > 0)
            log += ", media close song, media open \"" + game.session.AppPath + "LCWAVS/GameOver" +
                   (place > 0 ? '2' : '1') + ".mp3\" alias song, media play song, dialog frmScores2";
        const std::string seen = asked ? "seen " : "", counter = asked ? "counter " : "";
        const std::string message = music ? "message intro " : "message ";
        if (!two) return log + ": off progress over " + seen + (last.columns == 1 ? counter : "") + message;
        if (!second)
            return log + ": roll next " + (oblg && asked ? "undo " : "") + "seen " + (oblg ? "counter " : counter);
        log += game.session.FinalScore1 == game.session.Total ? ", effect draw" : ", effect applause";
        return log + ", dialog frmTheWinerIs: roll off board progress over seen " + counter + message;
    }

    const LastBox last;
    const bool two = TwoPlayers(game.settings), music = game.settings.BGMusicEnabled, oblg = last.event[4] == '4';
    int rolls = 3, place = 1;
    bool second = false;  // the player on move
    bool scores = true;   // the last box is worth something
    bool undone = false;  // the player takes it back when asked
    std::function<int()> record = [this] {
        EXPECT_TRUE(game.table.panels[2].text == " " && !game.session.GameInProgress &&
                    !game.table.timers[Timer::Timer3].enabled);
        return place;
    };
};

TEST(EndOfGame, EachPathWithEachKindOfLastBox) {
    for (const LastBox& box : lastBoxes)
        for (int variant = 0; variant < 20; ++variant) {
            SCOPED_TRACE(box.event + " variant " + std::to_string(variant));
            const auto mix = variant / 2 + (&box - lastBoxes);
            EndingGame ending(variant % 2 + 1, box, mix % 3 == 0);
            ending.scores = variant / 2 % 2 == 0;
            ending.place = mix % 4 < 2 ? 20 : -1;
            ending.rolls = variant / 4 % 3 + 1;
            const GameSession& session = ending.game.session;
            for (int player = 0; player <= ending.two; ++player) {
                ending.second = player == 1;
                ending.undone = variant / 4 >= 3;
                if (ending.undone) ending.table.dialogs.answers = {HeadlessAnswer::Undo};
                ending.Finish();
                EXPECT_EQ(ending.Outcome(), ending.Expected());
                if (std::exchange(ending.undone, false)) {
                    ending.Takes("tick tmrCounter");
                    ending.Do(box.event);
                    EXPECT_EQ(ending.Outcome(), ending.Expected());
                }
                EXPECT_TRUE(!ending.two || session.Total == (player == 0 ? session.FinalScore1 : session.FinalScore2));
                ending.scores = !ending.scores;
                ending.Takes("tick tmrCounter");
            }
        }
}

TEST(EndOfGame, FailingScoreFileLetsNewGameWorkAtOnce) {
    for (const int code : {53, 70}) {
        const std::string told = ", message Open scores|53File not foundCannot open x.dat|information|ok";
        const std::string failed = "effect-wait score, effect counter7, effect counter0, record-failed 1";
        EndingGame ending(2, lastBoxes[0], false);
        ending.record = [&]() -> int { throw ScoreFileError(code, "File not found", "x.dat"); };
        ending.Finish();
        EXPECT_EQ(ending.Outcome(), failed + (code == 53 ? told : "") + ": roll next progress seen ");
        ending.Finish();
        EXPECT_EQ(ending.Outcome(), failed + (code == 53 ? told : "") + ": roll progress seen ");
        ending.Do("new");
        EXPECT_EQ(ending.game.session.BoxesFilled, 0);
    }
}

TEST(EndOfGame, TheWinner) {
    const auto texts = [](int first, int second, bool sound = true) {
        PlayedTable t({.Player1 = "Ann  ", .Player2 = " Bo ", .SoundEnabled = sound});
        std::tie(t.game.session.FinalScore1, t.game.session.FinalScore2) = std::pair(first, second);
        const WinnerTexts w = frmTheWinerIs_Load(t.game);
        return w.lblPlayer1 + w.lblScore1 + '|' + w.lblPlayer2 + w.lblScore2 + '|' + w.lblWiner + '|' +
               Shortened(t.table.log);
    };
    EXPECT_EQ(texts(-5, 0), "Ann's Total Score:-5| Bo's Total Score:0| Bo  Wins!|effect applause");
    EXPECT_EQ(texts(-8, -9), "Ann's Total Score:-8| Bo's Total Score:-9|Ann   Wins!|effect applause");
    EXPECT_EQ(texts(0, 0), "Ann's Total Score:0| Bo's Total Score:0|It's a Draw!|effect draw");
    EXPECT_EQ(texts(7, 7, false), "Ann's Total Score:7| Bo's Total Score:7|It's a Draw!|");
}

}  // namespace
