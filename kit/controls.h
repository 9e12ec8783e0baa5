#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <functional>
#include <optional>

#include "kit/art.h"

// The small controls that the main window is made of. None of them takes the keyboard: Enter and space belong to the
// window.

namespace colour {
inline constexpr QColor black{0x00, 0x00, 0x00};
inline constexpr QColor white{0xFF, 0xFF, 0xFF};
inline constexpr QColor window{0xCD, 0xCD, 0xCD};
inline constexpr QColor light{0xF6, 0xF6, 0xF6};
inline constexpr QColor dark{0x7C, 0x7C, 0x7C};
inline constexpr QColor softLight{0xEA, 0xEA, 0xEE};
inline constexpr QColor softDark{0xA8, 0xA8, 0xB4};
inline constexpr QColor rowPanel{0x60, 0x57, 0xAF};
inline constexpr QColor rowFrame{0xA9, 0xA4, 0xDC};
inline constexpr QColor box{0xBC, 0xCF, 0xEC};
inline constexpr QColor boxShade{0x93, 0xA9, 0xD0};
inline constexpr QColor boxShine{0xDD, 0xE8, 0xF8};
inline constexpr QColor maxMinText{0x40, 0x40, 0x40};
inline constexpr QColor sumText{0x00, 0x00, 0xFF};
inline constexpr QColor columnTotal{0xE4, 0xEC, 0xFA};
inline constexpr QColor columnTotalText{0x00, 0x00, 0xC0};
inline constexpr QColor sumLabel{0xCF, 0xD0, 0xE0};
inline constexpr QColor tray{0x50, 0x50, 0x50};
inline constexpr QColor rollGround{0x3C, 0x3C, 0x3C};
inline constexpr QColor shade{0x00, 0x00, 0x10, 0x58};
inline constexpr QColor sheen{0xC8, 0xC4, 0xF4, 0x3C};
inline constexpr QColor satinHot{0xF4, 0xF8, 0xFF};
inline constexpr QColor satinHigh{0xD5, 0xE3, 0xFB};
inline constexpr QColor satinLow{0x9C, 0xBB, 0xF0};
inline constexpr QColor goldHigh{0xFF, 0xF0, 0xB8};
inline constexpr QColor gold{0xF0, 0xBE, 0x45};
inline constexpr QColor goldLow{0xB8, 0x7C, 0x17};
inline constexpr QColor goldEdge{0x6A, 0x45, 0x08};
inline constexpr QColor boxGround{0x90, 0x90, 0x90};
inline constexpr QColor dimmed{0x10, 0x18, 0x30, 0x80};
inline constexpr QColor tip{0xFF, 0xFF, 0x00};
inline constexpr QColor highlight{0xFF, 0xFF, 0xE1};
}  // namespace colour

// A font of the told families, or of those that stand for them, in so many device-independent pixels at the
// told size.
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
    void SetMargins(int left, int right);       // pixels of the told size; of nothing at first
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
    // From top to bottom; a middle that is no colour is left out.
    QLinearGradient Shaded(const QColor& top, const QColor& middle, const QColor& bottom) const;
    void PaintCaption(QPainter& painter);

    QString caption_;
};
