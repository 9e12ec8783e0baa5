#pragma once

#include "core/ports.h"
#include "table/column_animation.h"
#include "table/score_counter.h"
#include "table/status_bar.h"

// The moving parts of one table, with the working values that are theirs alone.
class TableParts final : public MovingParts {
public:
    void ScoreCounter(Game& game) override;
    void ResetScoreCounter() override;
    int StartTableAnimation(Game& game) override;
    void SetControls(Game& game) override;
    void SetStatusBar(Game& game) override;
    void ShowCurrentPlayer(Game& game, int choice) override;
    void ResetGameOverMessage() override;

    // One tick of a timer of the table: all but Timer3 and Timer4, which are the music's.
    void Tick(Game& game, Timer timer);

private:
    ScoreCounterState counter_;
    ColumnAnimationState animation_;
    StatusBarState status_;
};
