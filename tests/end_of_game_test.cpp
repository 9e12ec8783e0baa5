#include <fstream>
#include <sstream>

#include "tests/state_differences.h"

namespace {

// Score files in which each score gets the same place.
struct PlaceInAll final : SilentScores {
    explicit PlaceInAll(const int& each) : place(each) {}
    int Record(int, const ScoreRecord&) override { return place; }
    const int& place;
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

// A game before the last box of each player, all others of which are written from rolls of sixes.
struct EndingGame : PlayedTable {
    EndingGame(int number, const LastBox& box, bool withMusic)
        : PlayedTable({.NumberOfPlayers = number, .NumberOfColumns = box.columns, .BGMusicEnabled = withMusic}),
          last(box) {
        game.session.AppPath = "folder/";
        table.scores.Keep(std::make_unique<PlaceInAll>(place));
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
        if (rolls < 3 || last.event[4] != '4') Do(last.event);
    }

    // All that happened from the sound of the placement on, but for the painting of the counter, and what is on then.
    std::string Outcome() const {
        const TableState& shown = game.table;
        const auto placed = std::ranges::find_if(table.log, [](auto& e) { return e.starts_with("effect-wait"); });
        std::vector<std::string> log(placed, table.log.end());
        std::erase_if(log, [](auto& e) { return e.starts_with("sleep") || e.starts_with("refresh"); });
        return Shortened(log) + ":" + (std::ranges::count(OpenEvents(), last.event) ? " box" : "") +
               (std::ranges::any_of(shown.dice, &DieState::enabled) ? " dice" : "") +
               (shown.roll.enabled ? " roll" : "") + (shown.roll.picture == RollPicture::Off ? " off" : "") +
               (shown.nextPlayer ? " next" : "") +
               (shown.showBoard.visible && shown.showBoard.enabled ? " board" : "") + (shown.undo ? " undo" : "") +
               (game.session.GameInProgress ? " progress" : "") + (game.session.GameOverShown ? " over" : "") +
               (game.session.EndGameSeen ? " seen" : "") + (shown.timers[Timer::tmrCounter].enabled ? " counter" : "") +
               (shown.timers[Timer::tmrGameOver].enabled ? " message" : "") +
               (shown.timers[Timer::Timer4].enabled ? " intro" : "");
    }

    const LastBox last;
    int rolls = 3, place = 1;
    bool scores = true;  // the last box is worth something
};

TEST(EndOfGame, EachPathWithEachKindOfLastBox) {
    std::ifstream in(CASES "endings.txt");
    int cases = 0;
    const auto expectNext = [&](const EndingGame& ending) {
        std::string expected;
        std::getline(in, expected);
        EXPECT_EQ("  " + ending.Outcome(), expected);
    };
    for (std::string line; std::getline(in, line);) {
        if (line[0] == '#') continue;
        SCOPED_TRACE(line);
        ++cases;
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
    EXPECT_EQ(cases, 30);
}

}  // namespace
