#pragma once

#include "table/box_mark.h"

// The keys of a player without a mouse, besides Enter and space. Each does what the mouse would do on its control.
enum class PlayerKey {
    Die1,
    Die2,
    Die3,
    Die4,
    Die5,
    Die6,
    Left,
    Right,
    Up,
    Down,
    PressMarked,
    TakeMarkAway,
    Hint,
    NextPlayer,
    ShowBoard,
    Undo,
    Redo
};

// A key that is held down repeats nothing but a movement.
constexpr bool Repeats(PlayerKey key) { return key >= PlayerKey::Left && key <= PlayerKey::Down; }

// Does nothing while the key's control is hidden or disabled.
void PressKey(Game& game, BoxMark& mark, PlayerKey key);
