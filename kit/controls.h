#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <functional>
#include <optional>

#include "kit/art.h"
#include "kit/colours.h"

// The small controls that the main window is made of. None of them takes the keyboard: Enter and space belong to the
// window.

// A font of the game's families, or of those that stand for them, in so many device-independent pixels at the
// normal size.
QFont TableFont(bool bold, int pixels = 11);
// The same font, smaller where the text would not fit the width in pixels.
QFont FittedFont(QFont font, const QString& text, int width);
QFont BoxFont();  // the families of boxes and totals; the rest is their parent's

// The edge of an area, one device pixel wide. An invalid colour paints nothing.
void PaintEdges(QPainter& painter, const QRect& area, const QColor& topLeft, const QColor& bottomRight);

// A filled area, with a sheen on its upper half where it has an edge; one that is nothing but a left or top edge is a
// line. Takes no mouse.
class Shape final : public QWidget {
public:
    Shape(const QString& name, QWidget* parent, QColor fill, QColor topLeftEdge = {}, QColor bottomRightEdge = {});
    void SetFill(QColor fill);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fill_, topLeftEdge_, bottomRightEdge_;
};

// A ground with round corners, sunk so that its upper rim throws a soft shadow on it. Takes no mouse.
class Well final : public QWidget {
public:
    Well(const QString& name, QWidget* parent, QColor fill);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fill_;
};

struct LabelLook {
    QColor ground;  // invalid: what lies behind shows
    QColor text;
    QColor topLeftEdge, bottomRightEdge;  // invalid: no edge
};

// A text on coloured ground, in the font of its parent, or a smaller one where it would not fit. Takes no mouse.
class TextLabel final : public QLabel {
public:
    TextLabel(const QString& name, QWidget* parent, const LabelLook& look, Qt::Alignment alignment);
    void SetLook(const LabelLook& look);
    void SetMargins(int left, int right);       // pixels of the normal size; of nothing at first
    void SetDrop(int twips) { drop_ = twips; }  // how far below its middle the text stands

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    LabelLook look_;
    int leftMargin_ = 0, rightMargin_ = 0, drop_ = 0;
};

// A picture that only shows.
class Picture final : public QWidget {
public:
    Picture(const QString& name, QWidget* parent, Art& art, const QString& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Art& art_;
    QString picture_;
};

// A picture that can be clicked. A picture that is left empty is drawn as the plain one.
class PictureButton : public QAbstractButton {
public:
    struct Looks {
        QString plain;
        QString underMouse{}, pressed{}, disabled{};
        QString mark{};  // drawn on all but the disabled one
    };

    PictureButton(const QString& name, QWidget* parent, Art& art, const Looks& looks);
    void SetLooks(const Looks& looks);
    const Looks& ShownLooks() const { return looks_; }
    // The mark of a player without a mouse is on this button, or on another; nothing: there is none. The marked button
    // alone has the look under the mouse, wherever the mouse is.
    void SetMarked(std::optional<bool> on);
    bool Marked() const { return marked_.value_or(false); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    Art& art_;
    Looks looks_;
    std::optional<bool> marked_;
};

// A raised push button with a golden edge and a caption that wraps.
class CaptionButton final : public QAbstractButton {
public:
    CaptionButton(const QString& name, QWidget* parent);
    // The caption as it reads: an ampersand in it is one.
    void SetCaption(const QString& caption);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintCaption(QPainter& painter);

    QString caption_;
};
