#include "table/window/table_controls.h"

#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/window/layout.h"
#include "table/window/tool_tips.h"

TableControls::TableControls(QMainWindow& window, Art& art, const GlyphColumns& scorePicture, QStyle* style,
                             const Events& events)
    : area(new TableArea(&window, events.firstPicture)),
      lines(area),
      labels(area),
      board(area, art, events.board),
      tray(area, art, events.tray),
      score(new CounterDisplay(area, art, scorePicture)),
      toolBar(new ToolBar(area, art, events.commands)),
      menuBar(new MenuBar(&window, art, events.commands)),
      statusBar(new StatusBarWidget(area)) {
    Say(*area, "Table");
    score->setToolTip(counterTip);
    window.setMenuBar(menuBar);
    window.setCentralWidget(area);
    Put(*toolBar, {0, 0, windowWidth, toolbarHeight});
    if (!style) return;
    menuBar->SetStyle(*style);
    toolBar->setStyle(style);
}
