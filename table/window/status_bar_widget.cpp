#include "table/window/status_bar_widget.h"

#include <QPainter>

#include "kit/controls.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/window/layout.h"

namespace {
constexpr int gapAtNormalSize = 2;
constexpr int insetAtNormalSize = 3;

// A player's name, which may be as long as the player likes: where it is cut it shows that it is, and tells the whole
// under a resting mouse.
class NamePanel final : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        setToolTip(shown == text() ? QString() : text());
    }
};

// The name of the clock does not change with every second. A text that only moves is told once.
constexpr int clockPanel = 5;
constexpr Indexed<const char*, clockPanel, int, 1> panelNames{
    {"On move", "What to do", "Totals", "Progress", "Time played"}};

QString SpokenText(int k, const QString& text) {
    return text.isEmpty() ? QString(panelNames[k]) : QString("%1: %2").arg(panelNames[k], text);
}

QLabel* MakePanel(int k, QWidget* parent) { return k == 1 ? new NamePanel(parent) : new QLabel(parent); }
}  // namespace

StatusBarWidget::StatusBarWidget(QWidget* parent) : QWidget(parent) {
    setObjectName("StatusBar1");
    Say(*this, "Status bar");
    SetRole(*this, QAccessible::StatusBar);
    SetLetters(*this, TableFont(false));
    for (int k = 1; k <= 5; ++k) {
        panels_[k].label = MakePanel(k, this);
        panels_[k].label->setObjectName(QString("StatusBar1_%1").arg(k));
        panels_[k].label->setTextFormat(Qt::PlainText);
        Say(*panels_[k].label, SpokenText(k, {}));
        panels_[k].label->hide();
    }
    panels_[clockPanel].visible = true;
}

void StatusBarWidget::SetPanelText(int k, const QString& text) {
    QLabel& label = *panels_[k].label;
    const bool moves = text.size() == label.text().size() && (text + text).contains(label.text());
    label.setText(text);
    if (k == clockPanel)
        label.setAccessibleDescription(text);
    else if (!moves)
        Say(label, SpokenText(k, text));
}

void StatusBarWidget::SetPanelLayout(int k, int widthInTwips, bool visible) {
    panels_[k].width = widthInTwips;
    panels_[k].visible = visible;
    PlacePanels();
}

void StatusBarWidget::PlacePanels() {
    const int gap = Sized(gapAtNormalSize), inset = Sized(insetAtNormalSize);
    int left = 0;
    for (Panel& panel : panels_) {
        panel.label->setVisible(panel.visible);
        if (!panel.visible) continue;
        const bool last = &panel == &panels_[clockPanel];
        const int right = last ? width() : left + Pixels(panel.width);
        panel.label->setGeometry(left + inset, 1, right - left - 2 * inset, height() - 2);
        left = right + gap;
    }
    update();
}

void StatusBarWidget::resizeEvent(QResizeEvent*) { PlacePanels(); }

void StatusBarWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colour::window);
    const int inset = Sized(insetAtNormalSize);
    for (const Panel& panel : panels_) {
        if (!panel.visible) continue;
        PaintEdges(painter, panel.label->geometry().adjusted(-inset, -1, inset, 1), colour::softDark,
                   colour::softLight);
    }
}
