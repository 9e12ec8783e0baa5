#pragma once

#include <string>

#include "core/dice_set.h"
#include "core/scorecard.h"
#include "core/timer.h"

enum class RollPicture { Up, On, Off };

struct TimerState {
    int interval = 0;  // ms
    bool enabled = false;
};

struct DieState {
    int face = 1;  // the face shown, 1 to 6
    bool shown = true;
    bool held = false;     // which of its two pictures is the visible one
    bool enabled = false;  // both pictures: a click can reach the visible one alone
};

struct RollButtonState {
    bool enabled = true;
    bool visible = true;
    RollPicture picture = RollPicture::Up;
};

struct PanelState {
    std::string text;
    int width = 0;  // twips; panel 5 takes what is left
    bool visible = false;
};

struct ShowBoardState {
    bool visible = false;
    bool enabled = false;
    std::string caption;
};

// What the window shows besides boxes and totals, as far as a rule, a tool or a test asks for it. The window is only
// told; this is the truth.
struct TableState {
    ByDie<DieState> dice{{{{.face = 1}, {.face = 2}, {.face = 3}, {.face = 4}, {.face = 5}, {.face = 6}}}};
    RollButtonState roll;
    int lamps = 0;  // lit lamps, from the left

    ByRow<std::string> tips;  // empty or a decimal number
    bool tipColumn = false;
    ByRow<bool> highlighted{};

    Indexed<PanelState, 5, int, 1> panels;  // 1 to 5
    bool statusBar = true;
    int height = 0;  // of the whole window frame, twips
    std::string title;
    std::string lblTimeElapsed;  // the clock's text between two ticks

    bool undo = false;
    bool redo = false;
    bool hintButton = true;
    bool nextPlayer = false;
    ShowBoardState showBoard;

    // In the order of the enumeration.
    ByTimer<TimerState> timers{{{{300}, {1000}, {150}, {1}, {10}, {500}, {1000}}}};
};
