#include "table/window/frame_lines.h"

#include "kit/sized_widgets.h"

FrameLines::FrameLines(QWidget* table)
    : rows_(Make(table, rowFrameLines)), boxes_(Make(table, boxFrameLines)), tray_(Make(table, trayFrameLines)) {}

// The first two lines of a frame are its left and its top.
FrameLines::Frame FrameLines::Make(QWidget* table, const std::array<ControlPlace, 4>& places) {
    Frame frame{};
    for (std::size_t i = 0; i < frame.size(); ++i)
        frame[i] = new Shape(places[i].name, table, QColor(), i < 2 ? colour::softLight : colour::softDark);
    return frame;
}

void FrameLines::PlaceFrame(const Frame& frame, const std::array<ControlPlace, 4>& places, int columns) {
    for (std::size_t i = 0; i < frame.size(); ++i) Put(*frame[i], places[i].In(columns));
}

void FrameLines::SetFrameHeight(int columns) { PlaceFrame(rows_, rowFrameLines, columns); }

void FrameLines::LayOut(int columns) {
    PlaceFrame(boxes_, boxFrameLines, columns);
    PlaceFrame(tray_, trayFrameLines, columns);
}
