#pragma once

#include "core/ports/moving_parts.h"
#include "table/column_animation.h"
#include "table/status_bar.h"

// The moving parts of one table, with the working values that are theirs alone.
struct TableParts final : MovingParts {
    void ScoreCounter(Game& game) override;
    int StartTableAnimation(Game& game) override;
    void SetControls(Game& game) override;
    void SetStatusBar(Game& game) override;
    void ShowCurrentPlayer(Game& game, int choice) override;
    void ResetGameOverMessage() override;

    ColumnAnimationState animation;
    StatusBarState status;
};
