#include "table/box_mark.h"

#include <cstdlib>
#include <utility>

#include "core/hints.h"
#include "table/presses.h"

namespace {

int ColumnsFrom(const Box& from, const Box& to) { return static_cast<int>(to.column) - static_cast<int>(from.column); }
int RowsFrom(const Box& from, const Box& to) { return to.row - from.row; }

// How far a box lies ahead in a direction, and how far beside it.
struct Way {
    int ahead, aside;
};

Way WayTo(const Box& from, const Box& to, Direction direction) {
    const int columns = ColumnsFrom(from, to);
    const int rows = RowsFrom(from, to);
    switch (direction) {
        case Direction::Left:
            return {-columns, std::abs(rows)};
        case Direction::Right:
            return {columns, std::abs(rows)};
        case Direction::Up:
            return {-rows, std::abs(columns)};
        case Direction::Down:
            return {rows, std::abs(columns)};
    }
    return {};
}

// The open box that costs least. cost(box): something that compares; none: out of the question.
template <typename Cost>
std::optional<Box> CheapestOpenBox(const Game& game, Cost cost) {
    std::optional<Box> best;
    for (ScoreColumn column : allColumns) {
        for (int row = 0; row < rowCount; ++row) {
            const Box box{column, row};
            if (!BoxOpen(game, column, row) || !cost(box)) continue;
            if (!best || *cost(box) < *cost(*best)) best = box;
        }
    }
    return best;
}

void Mark(Game& game, BoxMark& mark, const Box& box) {
    if (mark.box && *mark.box != box) LeaveBox(game, *mark.box);
    // The light of a mouse that rests on another box goes out.
    for (int row = 0; row < rowCount; ++row)
        if (game.table.highlighted[row] && mark.box != box) LeaveBox(game, {ScoreColumn::Rand, row});
    mark.box = mark.last = box;
    mark.kept = true;
    cmdBox_MouseMove(game, box.column, box.row, true);
}

}  // namespace

std::optional<Box> NearestOpenBox(const Game& game, const Box& from) {
    return CheapestOpenBox(game, [&](const Box& box) {
        const int columns = std::abs(ColumnsFrom(from, box));
        return std::optional(std::pair(columns + std::abs(RowsFrom(from, box)), columns));
    });
}

std::optional<Box> NextOpenBox(const Game& game, const Box& from, Direction direction) {
    return CheapestOpenBox(game, [&](const Box& box) {
        const Way way = WayTo(from, box, direction);
        return way.ahead > 0 ? std::optional(std::pair(way.aside, way.ahead)) : std::nullopt;
    });
}

void MoveMark(Game& game, BoxMark& mark, Direction direction) {
    const auto next = mark.box ? NextOpenBox(game, *mark.box, direction) : NearestOpenBox(game, mark.last);
    if (next) Mark(game, mark, *next);
}

void TakeMarkAway(Game& game, BoxMark& mark) {
    if (mark.box) LeaveBox(game, *mark.box);
    mark.box.reset();
    mark.kept = false;
}

void Follow(Game& game, BoxMark& mark) {
    const bool rolled = game.session.RollCount > mark.rollCount;
    mark.rollCount = game.session.RollCount;
    if (mark.box && !BoxOpen(game, mark.box->column, mark.box->row)) {
        LeaveBox(game, *mark.box);
        mark.box.reset();
    }
    // What was done may have put out the light of a box that stays open.
    if (mark.box) cmdBox_MouseMove(game, mark.box->column, mark.box->row, true);
    if (mark.box || !mark.kept || !rolled) return;
    if (const auto nearest = NearestOpenBox(game, mark.last)) Mark(game, mark, *nearest);
}

void LeaveBox(Game& game, const Box& box) {
    cmdBox_MouseMove(game, box.column, box.row, true);
    cmdBox_MouseMove(game, box.column, box.row, false);
}
