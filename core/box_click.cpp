#include "core/box_click.h"

#include <cassert>

#include "core/announce.h"
#include "core/placement.h"

void ClickBox(Game& game, ScoreColumn column, int row) {
    assert(column != ScoreColumn::None && IsRow(row));
    switch (column) {
        case ScoreColumn::Down:
            return cmdDown_Click(game, row);
        case ScoreColumn::Up:
            return cmdUp_Click(game, row);
        case ScoreColumn::Rand:
            return cmdRand_Click(game, row);
        case ScoreColumn::Oblg:
            return cmdOblg_Click(game, row);
        case ScoreColumn::None:
            return;
    }
}
