#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <functional>

#include "kit/art.h"

// The small controls that the main window is made of. None of them takes the keyboard: Enter and space belong to the
// window.

namespace colour {
inline constexpr QColor black{0x00, 0x00, 0x00};
inline constexpr QColor white{0xFF, 0xFF, 0xFF};
inline constexpr QColor window{0xCD, 0xCD, 0xCD};
inline constexpr QColor light{0xF6, 0xF6, 0xF6};
inline constexpr QColor dark{0x7C, 0x7C, 0x7C};
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
inline constexpr QColor trayEdge{0x3C, 0x3C, 0x3C};
inline constexpr QColor satinHot{0xE6, 0xF0, 0xFF};
inline constexpr QColor satinHigh{0xC2, 0xD7, 0xFA};
inline constexpr QColor satinLow{0x86, 0xAB, 0xEC};
inline constexpr QColor satinEdge{0x1D, 0x3A, 0x7A};
inline constexpr QColor boxGround{0x90, 0x90, 0x90};
inline constexpr QColor tip{0xFF, 0xFF, 0x00};
inline constexpr QColor highlight{0xFF, 0xFF, 0xE1};
}  // namespace colour

// A font of the told families, or of those that stand for them, in device-independent pixels.
QFont TableFont(bool bold, int pixels = 11);
QFont BoxFont();  // of boxes and totals

// The edge of an area, about one pixel wide and everywhere of the same width. An invalid colour paints nothing.
void PaintEdges(QPainter& painter, const QRect& area, const QColor& topLeft, const QColor& bottomRight);

// A filled area with an edge; one that is nothing but a left or top edge is a line. Takes no mouse.
class Shape final : public QWidget {
public:
    Shape(const QString& name, QWidget* parent, QColor fill, QColor topLeftEdge = {}, QColor bottomRightEdge = {});

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fill_, topLeftEdge_, bottomRightEdge_;
};

struct LabelLook {
    QColor ground, text;
    QColor topLeftEdge, bottomRightEdge;  // invalid: no edge
};

// A text on coloured ground, in the font of its parent. Takes no mouse.
class TextLabel final : public QLabel {
public:
    TextLabel(const QString& name, QWidget* parent, const LabelLook& look, Qt::Alignment alignment);
    void SetLook(const LabelLook& look);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    LabelLook look_;
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
        QString plain, underMouse, disabled;
    };

    PictureButton(const QString& name, QWidget* parent, Art& art, const Looks& looks);
    void SetLooks(const Looks& looks);
    const Looks& ShownLooks() const { return looks_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    Art& art_;
    Looks looks_;
};

// A push button with a caption that wraps.
class CaptionButton final : public QAbstractButton {
public:
    CaptionButton(const QString& name, QWidget* parent);
    // The caption as it reads: an ampersand in it is one.
    void SetCaption(const QString& caption);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString caption_;
};
