#pragma once

#include "core/game.h"

struct ColumnAnimationState {
    int AnimKind = 0;  // 1 to 9 with four columns, 1 to 4 with one
    int AnimStage = 0;
    int AnimIndex = 0;                  // the running row or position
    Indexed<int, boxCount> BoxOrder{};  // cell v: column v / 13 (0 Down), row v mod 13
};

void StartTableAnimation(Game& game, ColumnAnimationState& state);
void ShuffleBoxOrder(Game& game, ColumnAnimationState& state);
void tmrAnimation_Timer(Game& game, ColumnAnimationState& state);  // one frame
