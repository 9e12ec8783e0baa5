#include "table/counter_display.h"

static QString ArtOf(char glyph) { return glyph == '-' ? QString("digit_minus") : QString("digit_") + glyph; }

CounterDisplay::CounterDisplay(QWidget* parent, Art& art, const GlyphColumns& picture)
    : QWidget(parent), art_(art), picture_(picture) {
    setObjectName("picScore");
    setAccessibleName("Grand Total");
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CounterDisplay::Refresh() {
    QString shown;
    for (const GlyphRun& run : picture_.Runs()) shown += run.glyph;
    setAccessibleDescription(shown);
    repaint();
}

void CounterDisplay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    art_.Draw(painter, rect(), "counter_blank");
    for (const GlyphRun& run : picture_.Runs()) {
        painter.save();
        painter.setClipRect(QRectF(run.x + run.first, glyphTop, run.last - run.first + 1, glyphHeight));
        art_.Draw(painter, QRectF(run.x, glyphTop, glyphWidth, glyphHeight), ArtOf(run.glyph));
        painter.restore();
    }
}
