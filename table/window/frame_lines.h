#pragma once

#include "kit/controls.h"
#include "table/window/layout.h"

// The three raised frames: around the row labels, around the boxes, and around dice and Roll button.
class FrameLines {
public:
    explicit FrameLines(QWidget* table);

    void SetFrameHeight(int columns);  // the first frame
    void LayOut(int columns);          // the other two

private:
    using Frame = std::array<Shape*, 4>;

    static Frame Make(QWidget* table, const std::array<ControlPlace, 4>& places);
    static void PlaceFrame(const Frame& frame, const std::array<ControlPlace, 4>& places, int columns);

    Frame rows_, boxes_, tray_;
};
