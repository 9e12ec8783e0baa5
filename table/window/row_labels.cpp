#include "table/window/row_labels.h"

#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/row_names.h"
#include "table/window/tool_tips.h"

namespace {
constexpr LabelLook labelLook{{}, colour::white, {}, {}};
constexpr LabelLook highlightLook{{}, colour::black, {}, {}};
constexpr LabelLook tipLook{{}, colour::tip, {}, {}};
constexpr LabelLook sumLook{{}, colour::black, {}, {}};

QString Index(const char* array, int i) { return QString("%1_%2").arg(array).arg(i); }

Place LabelPlace(int row, int left, int width) { return {left, rowLabelTops[row], width, rowLabelHeight}; }

// The frame of a label stands in one line with the boxes of its row.
Place FramePlace(int boxTop, int height, int left, int width) {
    return {left, boxTop - rowPanelPlace.fourColumns.top, width, height};
}

// The label keeps its place and lets its text stand in the middle of the frame.
void PutIntoFrame(TextLabel& label, Shape& frame, const Place& labelPlace, const Place& framePlace) {
    Put(label, labelPlace);
    Put(frame, framePlace);
    const int labelMiddle = 2 * labelPlace.top + labelPlace.height;
    const int frameMiddle = 2 * framePlace.top + framePlace.height;
    label.SetDrop((frameMiddle - labelMiddle) / 2);
}
}  // namespace

RowLabels::RowLabels(QWidget* table) : panel_(new Well(rowPanelPlace.name, table, colour::rowPanel)) {
    Say(*panel_, "Rows");
    for (int row = 0; row < rowCount; ++row) MakeRow(row);
    for (std::size_t i = 0; i < sumRows.size(); ++i) MakeSumRow(i);
}

void RowLabels::MakeRow(int row) {
    labelFrames_[row] = new Shape(Index("shpOptions", row), panel_, colour::black, colour::rowFrame, colour::rowFrame);
    labels_[row] = new TextLabel(Index("lblOption", row), panel_, labelLook, Qt::AlignLeft);
    labels_[row]->setText(RowName(row));
    labels_[row]->SetMargins(5, 2);
    labels_[row]->setToolTip(rowTips[row]);
    tipFrames_[row] = new Shape(Index("Shape12", row), panel_, colour::black, colour::rowFrame, colour::rowFrame);
    tips_[row] = new TextLabel(Index("lblTip", row), panel_, tipLook, Qt::AlignHCenter);
    tips_[row]->SetMargins(1, 1);
    SetTip(row, {});
    PutIntoFrame(*tips_[row], *tipFrames_[row], LabelPlace(row, tipLeft, tipWidth),
                 FramePlace(boxTops[row], boxLabelHeight, tipLeft, tipWidth));
}

void RowLabels::MakeSumRow(std::size_t i) {
    const QString text = sumRows[i].text;
    sumFrames_[i] = new Shape(sumRows[i].frame, panel_, colour::sumLabel, colour::rowFrame, colour::rowFrame);
    sums_[i] = new TextLabel(sumRows[i].label, panel_, sumLook, Qt::AlignRight);
    sums_[i]->setText(text);
    Say(*sums_[i], text.trimmed());
    sums_[i]->SetMargins(2, text.endsWith(' ') ? 2 : 5);
    sums_[i]->setToolTip(sumTips[i]);
}

void RowLabels::SetFrameHeight(int columns) { Put(*panel_, rowPanelPlace.In(columns)); }

void RowLabels::LayOut(int columns) {
    for (std::size_t i = 0; i < sumRows.size(); ++i) {
        const ControlPlace label{"", {rowLabelLeft, sumRows[i].top, rowLabelWidth, rowLabelHeight}, sumRows[i].moves};
        const Place beside = sumRows[i].beside.In(columns);
        PutIntoFrame(*sums_[i], *sumFrames_[i], label.In(columns),
                     FramePlace(beside.top, beside.height, rowLabelLeft, rowLabelWidth));
        const bool shown = columns == 4 || !sumRows[i].onlyFourColumns;
        sums_[i]->setVisible(shown);
        sumFrames_[i]->setVisible(shown);
    }
}

void RowLabels::SetTip(int row, const QString& text) {
    tips_[row]->setText(text);
    Say(*tips_[row], QString("Hint for %1: %2").arg(RowName(row), text.isEmpty() ? QString("none") : text));
}

void RowLabels::ShowTips(bool on) {
    for (int row = 0; row < rowCount; ++row) {
        const int width = on ? rowLabelWidthWithTips : rowLabelWidth;
        PutIntoFrame(*labels_[row], *labelFrames_[row], LabelPlace(row, rowLabelLeft, width),
                     FramePlace(boxTops[row], boxLabelHeight, rowLabelLeft, width));
        tips_[row]->setVisible(on);
        tipFrames_[row]->setVisible(on);
    }
}

void RowLabels::Highlight(int row, bool on) {
    labelFrames_[row]->SetFill(on ? colour::highlight : colour::black);
    labels_[row]->SetLook(on ? highlightLook : labelLook);
}
