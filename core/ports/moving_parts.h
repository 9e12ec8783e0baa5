#pragma once

struct Game;

// The parts of the table that move or are laid out, which stand above the core.
class MovingParts {
public:
    virtual ~MovingParts() = default;
    virtual void ScoreCounter(Game& game) = 0;        // shows Total, counting up where it can
    virtual int StartTableAnimation(Game& game) = 0;  // returns the pattern drawn: 1 to 9, with one column 1 to 4
    virtual void SetControls(Game& game) = 0;
    virtual void SetStatusBar(Game& game) = 0;
    virtual void ShowCurrentPlayer(Game& game, int choice) = 0;  // 2: Player2, 3: Player1, else nothing
    virtual void ResetGameOverMessage() = 0;
};
