#include "table/window/counter_display.h"

#include "kit/spoken.h"

namespace {
QString ArtOf(char glyph) { return glyph == '-' ? QString("digit_minus") : QString("digit_") + glyph; }
}  // namespace

CounterDisplay::CounterDisplay(QWidget* parent, Art& art, const GlyphColumns& picture)
    : QWidget(parent), art_(art), picture_(picture) {
    setObjectName("picScore");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    constexpr int longestStep = 300;  // ms between two pictures of one count
    settled_.setSingleShot(true);
    settled_.setInterval(longestStep);
    settled_.callOnTimeout(this, &CounterDisplay::SayScore);
    SayScore();
}

void CounterDisplay::Refresh() {
    settled_.start();
    repaint();
}

void CounterDisplay::SayScore() {
    QString shown;
    for (const GlyphRun& run : picture_.Runs()) shown += run.glyph;
    Say(*this, "Grand Total: " + (shown.isEmpty() ? "empty" : shown));
}

// In device pixels, so that at a fractional scale the glyphs keep clear of the frame that is part of the blank picture.
void CounterDisplay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect face = DeviceArea(painter, rect());
    UseDevicePixels(painter);
    painter.drawPixmap(face.topLeft(), art_.Picture("counter_blank", face.size()));
    const auto across = [&](int x) { return face.left() + x * face.width() / counterWidth; };
    const auto down = [&](int y) { return face.top() + y * face.height() / counterHeight; };
    const int top = down(glyphTop);
    const int height = down(glyphTop + glyphHeight) - top;
    for (const GlyphRun& run : picture_.Runs()) {
        const QSize size(across(run.x + glyphWidth) - across(run.x), height);
        const int first = across(run.x + run.first);
        painter.setClipRect(first, top, across(run.x + run.last + 1) - first, height);
        painter.drawPixmap(across(run.x), top, art_.Picture(ArtOf(run.glyph), size));
    }
}
