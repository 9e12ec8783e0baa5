#pragma once

#include "kit/controls.h"
#include "table/window/layout.h"

// The panel Picture2 with the row labels, the tips beside them and the labels of the sum rows. Takes no clicks.
class RowLabels {
public:
    explicit RowLabels(QWidget* table);

    void SetFrameHeight(int columns);
    void LayOut(int columns);
    void SetTip(int row, const QString& text);
    void ShowTips(bool on);
    void Highlight(int row, bool on);

private:
    void MakeRow(int row);
    void MakeSumRow(std::size_t i);

    Well* panel_;
    ByRow<TextLabel*> labels_{};
    ByRow<Shape*> labelFrames_{};
    ByRow<TextLabel*> tips_{};
    ByRow<Shape*> tipFrames_{};
    std::array<TextLabel*, 4> sums_{};
    std::array<Shape*, 4> sumFrames_{};
};
