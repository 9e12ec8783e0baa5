#pragma once

#include <functional>

#include "kit/controls.h"
#include "table/box_mark.h"
#include "table/window/layout.h"

// A button over an open box; hidden and disabled at first. It tells when the mouse comes onto it while it can be
// clicked, and when it leaves again.
class BoxButton final : public PictureButton {
public:
    using Hover = std::function<void(bool onButton)>;

    // box: what a screen reader calls the box that the button stands over.
    BoxButton(const QString& name, QWidget* parent, Art& art, const QString& box, Hover hover);
    void SetAnnounced(bool on);
    void SetHint(const QString& points);  // what the box would score; empty when the player is not told

protected:
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void TellHover(bool on);
    void SayState();

    QString box_, hint_;
    bool announced_ = false;
    Hover hover_;
    bool hovered_ = false;
};

// The boxes of the four columns with their buttons, the totals under them and what stands around them.
class Board {
public:
    struct Events {
        std::function<void(ScoreColumn, int row)> click;
        std::function<void(ScoreColumn, int row, bool onButton)> hover;
    };

    Board(QWidget* table, Art& art, const Events& events);

    void LayOut(int columns);
    void SetPointer(const QCursor& pointer);

    BoxButton& Button(ScoreColumn column, int row) { return *columns_[column].buttons[row]; }
    TextLabel& BoxLabel(ScoreColumn column, int row) { return *columns_[column].boxes[row]; }
    void SetBoxText(ScoreColumn column, int row, const QString& text);
    void SetTotalText(ScoreColumn column, TotalRow row, const QString& text);
    void SetHint(int row, const QString& points);  // empty: none
    void ShowHints(bool on);
    void SetAnnounced(bool on);  // only the announced box is open then
    void ShowMark(const std::optional<Box>& mark);
    void SetBoxPicture(int row, bool normal);

private:
    struct Column {
        ByRow<TextLabel*> boxes{};
        ByRow<BoxButton*> buttons{};
        ByTotalRow<TextLabel*> totals{};
    };

    TextLabel& Total(ScoreColumn column, TotalRow row) { return *columns_[column].totals[row]; }
    void SayHint(int row);
    void TellColumns();
    void MakeColumn(ScoreColumn column, QWidget* table, Art& art, const Events& events);
    void PlaceColumn(ScoreColumn column, int columns);

    Well* ground_;
    Picture* arrowsFour_;
    Picture* arrowsOne_;
    ByColumn<Column> columns_;
    ByRow<QString> hints_;
    bool hintsShown_ = false;
};
