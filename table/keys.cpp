#include "table/keys.h"

#include "table/presses.h"

void PressKey(Game& game, BoxMark& mark, PlayerKey key) {
    switch (key) {
        case PlayerKey::Die1:
        case PlayerKey::Die2:
        case PlayerKey::Die3:
        case PlayerKey::Die4:
        case PlayerKey::Die5:
        case PlayerKey::Die6:
            PressDie(game, static_cast<int>(key) - static_cast<int>(PlayerKey::Die1));
            return;
        case PlayerKey::Left:
            return MoveMark(game, mark, Direction::Left);
        case PlayerKey::Right:
            return MoveMark(game, mark, Direction::Right);
        case PlayerKey::Up:
            return MoveMark(game, mark, Direction::Up);
        case PlayerKey::Down:
            return MoveMark(game, mark, Direction::Down);
        case PlayerKey::PressMarked:
            if (mark.box) PressBox(game, mark.box->column, mark.box->row);
            return;
        case PlayerKey::TakeMarkAway:
            return TakeMarkAway(game, mark);
        case PlayerKey::Hint:
            PressHint(game);
            return;
        case PlayerKey::NextPlayer:
            PressNextPlayer(game);
            return;
        case PlayerKey::ShowBoard:
            PressShowBoard(game);
            return;
        case PlayerKey::Undo:
            PressUndo(game);
            return;
        case PlayerKey::Redo:
            PressRedo(game);
            return;
    }
}
