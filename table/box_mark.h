#pragma once

#include <optional>

#include "core/game.h"

struct Box {
    ScoreColumn column;
    int row;  // 0 to 12

    bool operator==(const Box&) const = default;
};

// The player's place on the board without a mouse. The marked box is always one that takes presses, once Follow has
// seen what happened on the table; its row is lit as by a mouse that rests on it.
struct BoxMark {
    std::optional<Box> box;
    Box last{ScoreColumn::Rand, rowOnes};  // the one used last: marked or clicked
    bool kept = false;                     // comes back with the next roll when its box has gone
    int rollCount = 0;                     // when the table was last looked at
};

enum class Direction { Left, Right, Up, Down };

// The open box nearest to a place, by columns and rows to go; none when no box is open.
std::optional<Box> NearestOpenBox(const Game& game, const Box& from);

// The next open box in a direction: along the row or the column, and where that holds none, the least aside of those
// that lie that way. So the four directions lead from every open box to every other. None at the edge.
std::optional<Box> NextOpenBox(const Game& game, const Box& from, Direction direction);

void MoveMark(Game& game, BoxMark& mark, Direction direction);  // the first move marks the box nearest to the last one
void TakeMarkAway(Game& game, BoxMark& mark);
void Follow(Game& game, BoxMark& mark);  // after anything that happened on the table

// The mouse leaves a box. New Game forgets the hover but not the light, so the leaving mouse is reported once more
// before it goes.
void LeaveBox(Game& game, const Box& box);
