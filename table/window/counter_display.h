#pragma once

#include <QTimer>
#include <QWidget>

#include "kit/art.h"
#include "table/glyph_columns.h"

// picScore, the score counter's picture on the screen. It shows the stored picture at each repaint.
class CounterDisplay final : public QWidget {
public:
    CounterDisplay(QWidget* parent, Art& art, const GlyphColumns& picture);

    void Refresh();  // puts the picture on the screen before it returns

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void SayScore();

    Art& art_;
    const GlyphColumns& picture_;
    QTimer settled_;  // a screen reader is told once, when the count has ended
};
