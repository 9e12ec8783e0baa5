#include "table/window/frame_lines.h"

FrameLines::FrameLines(QWidget* table)
    : rows_(Make(table, rowFrameLines)), boxes_(Make(table, boxFrameLines)), tray_(Make(table, trayFrameLines)) {}

// The first two lines of a frame are its left and its top.
FrameLines::Frame FrameLines::Make(QWidget* table, const std::array<ControlPlace, 4>& places) {
    Frame frame{};
    for (std::size_t i = 0; i < frame.size(); ++i)
        frame[i] = new Shape(places[i].name, table, QColor(), i < 2 ? colour::light : colour::dark);
    return frame;
}

void FrameLines::PlaceFrame(const Frame& frame, const std::array<ControlPlace, 4>& places, int columns) {
    for (std::size_t i = 0; i < frame.size(); ++i) {
        const Place place = places[i].In(columns);
        const QPoint endPoint = place.width == 0 ? QPoint(0, 1) : QPoint(1, 0);  // belongs to the line
        const QRect area = Pixels(place);
        frame[i]->setGeometry(QRect(area.topLeft(), area.bottomRight() + endPoint));
    }
}

void FrameLines::SetFrameHeight(int columns) { PlaceFrame(rows_, rowFrameLines, columns); }

void FrameLines::LayOut(int columns) {
    PlaceFrame(boxes_, boxFrameLines, columns);
    PlaceFrame(tray_, trayFrameLines, columns);
}
