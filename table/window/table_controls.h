#pragma once

#include <QMainWindow>
#include <functional>

#include "table/window/board.h"
#include "table/window/counter_display.h"
#include "table/window/dice_tray.h"
#include "table/window/frame_lines.h"
#include "table/window/menu_bar.h"
#include "table/window/row_labels.h"
#include "table/window/status_bar_widget.h"
#include "table/window/table_area.h"
#include "table/window/tool_bar.h"

// All that stands on the table. The window, which shows none of it before a player sits down, makes it then: the
// welcome opens sooner without it.
struct TableControls {
    struct Events {
        std::function<void()> firstPicture;
        Board::Events board;
        DiceTray::Events tray;
        CommandRunner commands;
    };

    // window: takes the menu bar and the area. scorePicture: what the counter shows, there as long as it is painted.
    // style: the look of menu bar, drop-downs and toolbar, which outlives them; null: they look like any other.
    TableControls(QMainWindow& window, Art& art, const GlyphColumns& scorePicture, QStyle* style, const Events& events);

    TableArea* area;  // below the menu bar
    FrameLines lines;
    RowLabels labels;
    Board board;
    DiceTray tray;
    CounterDisplay* score;
    ToolBar* toolBar;
    MenuBar* menuBar;
    StatusBarWidget* statusBar;
};
