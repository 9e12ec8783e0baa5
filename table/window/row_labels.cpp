#include "table/window/row_labels.h"

#include "table/row_names.h"

namespace {
constexpr LabelLook labelLook{colour::black, colour::white, {}, {}};
constexpr LabelLook highlightLook{colour::highlight, colour::black, {}, {}};
constexpr LabelLook tipLook{colour::black, colour::tip, {}, {}};
constexpr LabelLook sumLook{colour::sumLabel, colour::black, {}, {}};

QString Index(const char* array, int i) { return QString("%1_%2").arg(array).arg(i); }

QRect RowArea(int row, int left, int width) { return Pixels(Place{left, rowLabelTops[row], width, rowLabelHeight}); }
}  // namespace

RowLabels::RowLabels(QWidget* table) : panel_(new Shape(rowPanelPlace.name, table, colour::rowPanel)) {
    for (int row = 0; row < rowCount; ++row) MakeRow(row);
    for (std::size_t i = 0; i < sumRows.size(); ++i) MakeSumRow(i);
}

void RowLabels::MakeRow(int row) {
    labels_[row] = new TextLabel(Index("lblOption", row), panel_, labelLook, Qt::AlignLeft);
    labels_[row]->setText(RowName(row));
    labels_[row]->setContentsMargins(5, 0, 2, 0);
    labelFrames_[row] = new Shape(Index("shpOptions", row), panel_, {}, colour::rowFrame, colour::rowFrame);
    tips_[row] = new TextLabel(Index("lblTip", row), panel_, tipLook, Qt::AlignHCenter);
    tips_[row]->setAccessibleDescription(QString("Hint for ") + RowName(row));
    tipFrames_[row] = new Shape(Index("Shape12", row), panel_, {}, colour::rowFrame, colour::rowFrame);
    tips_[row]->setGeometry(RowArea(row, tipLeft, tipWidth));
    tipFrames_[row]->setGeometry(RowArea(row, tipLeft, tipWidth));
}

void RowLabels::MakeSumRow(std::size_t i) {
    const QString text = sumRows[i].text;
    sums_[i] = new TextLabel(sumRows[i].label, panel_, sumLook, Qt::AlignRight);
    sums_[i]->setText(text);
    sums_[i]->setContentsMargins(2, 0, text.endsWith(' ') ? 2 : 5, 0);
    sumFrames_[i] = new Shape(sumRows[i].frame, panel_, {}, colour::rowFrame, colour::rowFrame);
}

void RowLabels::SetFrameHeight(int columns) { panel_->setGeometry(Pixels(rowPanelPlace.In(columns))); }

void RowLabels::LayOut(int columns) {
    for (std::size_t i = 0; i < sumRows.size(); ++i) {
        const ControlPlace place{"", {rowLabelLeft, sumRows[i].top, rowLabelWidth, rowLabelHeight}, sumRows[i].moves};
        const bool shown = columns == 4 || !sumRows[i].onlyFourColumns;
        for (QWidget* widget : {static_cast<QWidget*>(sums_[i]), static_cast<QWidget*>(sumFrames_[i])}) {
            widget->setGeometry(Pixels(place.In(columns)));
            widget->setVisible(shown);
        }
    }
}

void RowLabels::ShowTips(bool on) {
    for (int row = 0; row < rowCount; ++row) {
        const QRect area = RowArea(row, rowLabelLeft, on ? rowLabelWidthWithTips : rowLabelWidth);
        labels_[row]->setGeometry(area);
        labelFrames_[row]->setGeometry(area);
        tips_[row]->setVisible(on);
        tipFrames_[row]->setVisible(on);
    }
}

void RowLabels::Highlight(int row, bool on) { labels_[row]->SetLook(on ? highlightLook : labelLook); }
