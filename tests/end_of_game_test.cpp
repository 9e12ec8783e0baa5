#include "core/end_of_game.h"

#include <sstream>

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
};

const std::string sixes = " 6 6 6 6 6 6", ones = " 1 1 1 1 1 1", straight = " 1 2 3 4 5 6";
const LastBox lastBoxes[] = {{4, "box 1 12", sixes, straight}, {4, "box 2 0", ones, sixes},
                             {4, "box 3 10", straight, sixes}, {4, "box 4 12", sixes, straight},
                             {1, "box 3 10", straight, sixes}, {1, "box 3 6", ones, ones},
                             {4, "box 4 7", ones, ones}};

// What the outcomes call it.
const std::pair<std::string_view, const char*> words[] = {
    {"effect-wait ", ""},
    {"effect counter7, effect counter0", "counted"},
    {"dialog frmEndGame|", ""},
    {"undo, effect undo", "undo"},
    {"media close myMP3", "silence"},
    {"record ", ""},
    {"media close song, media open \"folder/LCWAVS/GameOver", "jingle "},
    {".mp3\" alias song, media play song", ""},
    {"dialog frmScores2", "scores"},
    {"effect applause, dialog frmTheWinerIs", "winner"},
    {"effect draw, dialog frmTheWinerIs", "draw"}};

// A game before the last box of each player, all others of which are written from rolls of sixes.
struct EndingGame : PlayedTable {
    EndingGame(int number, const LastBox& box, bool withMusic)
        : PlayedTable({.NumberOfPlayers = number, .NumberOfColumns = box.columns, .BGMusicEnabled = withMusic}),
          last(box) {
        game.session.AppPath = "folder/";
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
        std::string told = Shortened(log);
        for (const auto& [text, word] : words)
            for (auto at = told.find(text); at != told.npos; at = told.find(text)) told.replace(at, text.size(), word);
        told += std::string(":") + (box ? " box" : "") + (dice ? " dice" : "") + (shown.roll.enabled ? " roll" : "") +
                (shown.roll.picture == RollPicture::Off ? " off" : "") + (shown.nextPlayer ? " next" : "") +
                (shown.showBoard.visible && shown.showBoard.enabled ? " board" : "") + (shown.undo ? " undo" : "") +
                (shown.redo ? " redo" : "") + (session.GameInProgress ? " progress" : "") +
                (session.GameOverShown ? " over" : "") + (session.EndGameSeen ? " seen" : "") +
                (shown.timers[Timer::tmrCounter].enabled ? " counter" : "") +
                (shown.timers[Timer::tmrGameOver].enabled ? " message" : "") +
                (shown.timers[Timer::Timer4].enabled ? " intro" : "");
        return told;
    }

    const LastBox last;
    const bool oblg = last.event[4] == '4';
    int rolls = 3, place = 1;
    bool scores = true;  // the last box is worth something
    std::function<int()> record = [this] {
        EXPECT_TRUE(game.table.panels[2].text == " " && !game.session.GameInProgress &&
                    !game.table.timers[Timer::Timer3].enabled);
        return place;
    };
};

// Under the number of a last box and the last turns of one player or of two: what comes of each. A turn has so many
// rolls, and its box scores (+) or not (-). u: the player takes it back when asked and writes it again; p: the score
// gets into the table; m: there is music.
constexpr const char* endings = R"(0 3+pm
  score, counted, silence, 1|920|Player 1|20, jingle 2, scores: off progress over message intro
0 1-
  scoreZero, finish, 1|820|Player 1|-1, jingle 1, scores: off progress over seen message
0 2+u
  score, counted, undo: box dice roll progress seen counter
  score, counted, finish, 1|920|Player 1|-1, jingle 1, scores: off progress over seen message
0 1+ 3-
  score, finish, 1|920|Player 1|-1: roll next seen counter
  scoreZero, 1|820|Player 2|-1, winner: roll off board progress over seen message
0 3-p 2+um
  scoreZero, silence, 1|820|Player 1|20, jingle 2, scores: roll next seen
  score, undo: box dice roll progress seen counter
  score, finish, silence, 1|920|Player 2|20, jingle 2, scores, winner: roll off board progress over seen counter message intro
1 3-
  scoreZero, 1|920|Player 1|-1, jingle 1, scores: off progress over message
1 2+pm
  score, counted, finish, silence, 1|925|Player 1|20, jingle 2, scores: off progress over seen message intro
1 1+u
  score, counted, undo: box dice roll progress seen counter
  score, counted, finish, 1|925|Player 1|-1, jingle 1, scores: off progress over seen message
1 3+ 1-p
  score, counted, 1|925|Player 1|20, jingle 2, scores: roll next seen
  scoreZero, finish, 1|920|Player 2|20, jingle 2, scores, winner: roll off board progress over seen counter message
1 2-u 3+
  scoreZero, undo: box dice roll progress seen counter
  scoreZero, finish, 1|920|Player 1|-1: roll next seen counter
  score, counted, 1|925|Player 2|-1, winner: roll off board progress over seen message
2 3+pm
  score, counted, silence, 1|980|Player 1|20, jingle 2, scores: off progress over message intro
2 1+ 3-
  score, finish, 1|980|Player 1|-1: roll next seen counter
  scoreZero, 1|920|Player 2|-1, winner: roll off board progress over seen message
3 3+pm
  score, counted, silence, 1|920|Player 1|20, jingle 2, scores: off progress over message intro
3 1-
  scoreZero, finish, 1|820|Player 1|-1, jingle 1, scores: off progress over seen message
3 2+u
  score, counted, undo: box dice roll progress seen counter
  score, counted, finish, 1|920|Player 1|-1, jingle 1, scores: off progress over seen message
3 1+u
  score, counted, undo: box dice roll progress seen
  score, counted, finish, 1|920|Player 1|-1, jingle 1, scores: off progress over seen message
3 2+
  score, counted, finish, 1|920|Player 1|-1, jingle 1, scores: off progress over seen message
3 1+ 3-
  score, finish, 1|920|Player 1|-1: roll next undo seen counter
  scoreZero, 1|820|Player 2|-1, winner: roll off board progress over seen message
3 3-p 2+um
  scoreZero, silence, 1|820|Player 1|20, jingle 2, scores: roll next seen counter
  score, undo: box dice roll progress seen counter
  score, finish, silence, 1|920|Player 2|20, jingle 2, scores, winner: roll off board progress over seen counter message intro
4 3+pm
  score, counted, silence, 3|290|Player 1|20, jingle 2, scores: off progress over message intro
4 1-
  scoreZero, finish, 3|230|Player 1|-1, jingle 1, scores: off progress over seen counter message
4 2+u
  score, undo: box dice roll progress seen counter
  score, finish, 3|290|Player 1|-1, jingle 1, scores: off progress over seen counter message
4 1+ 3-
  score, finish, 3|290|Player 1|-1: roll next seen counter
  scoreZero, 3|230|Player 2|-1, winner: roll off board progress over seen message
4 3-p 2+um
  scoreZero, silence, 3|230|Player 1|20, jingle 2, scores: roll next seen
  score, undo: box dice roll progress seen counter
  score, finish, silence, 3|290|Player 2|20, jingle 2, scores, winner: roll off board progress over seen counter message intro
5 3+p
  score, 3|230|Player 1|20, jingle 2, scores: off progress over message
5 2+u
  score, undo: box dice roll progress seen counter
  score, finish, 3|230|Player 1|-1, jingle 1, scores: off progress over seen counter message
5 1+ 3-p
  score, finish, 3|230|Player 1|20, jingle 2, scores: roll next seen counter
  score, 3|230|Player 2|20, jingle 2, scores, draw: roll off board progress over seen message
6 3+p
  score, 1|920|Player 1|20, jingle 2, scores: off progress over message
6 2+u
  score, undo: box dice roll progress seen counter
  score, finish, 1|920|Player 1|-1, jingle 1, scores: off progress over seen message
6 1+ 3-p
  score, finish, 1|920|Player 1|20, jingle 2, scores: roll next undo seen counter
  score, 1|920|Player 2|20, jingle 2, scores, draw: roll off board progress over seen message
)";

TEST(EndOfGame, EachPathWithEachKindOfLastBox) {
    std::istringstream in(endings);
    const auto expectNext = [&](const EndingGame& ending) {
        std::string expected;
        std::getline(in, expected);
        EXPECT_EQ("  " + ending.Outcome(), expected);
    };
    for (std::string line; std::getline(in, line);) {
        SCOPED_TRACE(line);
        const auto has = [&](char mark) { return line.find(mark) != line.npos; };
        EndingGame ending(std::ranges::count(line, ' ') == 1 ? 1 : 2, lastBoxes[line[0] - '0'], has('m'));
        ending.place = has('p') ? 20 : -1;
        std::istringstream turns(line.substr(2));
        for (std::string turn; turns >> turn;) {
            ending.rolls = turn[0] - '0';
            ending.scores = turn[1] == '+';
            const bool undone = turn.find('u') != turn.npos;
            if (undone) ending.table.dialogs.answers = {HeadlessAnswer::Undo};
            ending.Finish();
            expectNext(ending);
            ending.Takes("tick tmrCounter");
            if (!undone) continue;
            ending.Do(ending.last.event);
            expectNext(ending);
            ending.Takes("tick tmrCounter");
        }
    }
}

TEST(EndOfGame, FailingScoreFileLetsNewGameWorkAtOnce) {
    for (const int code : {53, 70}) {
        const std::string told = ", message Open scores|53File not foundCannot open x.dat|information|ok";
        const std::string failed = "score, counted, record-failed 1";
        EndingGame ending(2, lastBoxes[0], false);
        ending.record = [&]() -> int { throw ScoreFileError(code, "File not found", "x.dat"); };
        ending.Finish();
        EXPECT_EQ(ending.Outcome(), failed + (code == 53 ? told : "") + ": roll next progress seen");
        ending.Finish();
        EXPECT_EQ(ending.Outcome(), failed + (code == 53 ? told : "") + ": roll progress seen");
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
