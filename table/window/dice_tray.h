#pragma once

#include <functional>

#include "core/table_state.h"
#include "kit/controls.h"
#include "table/window/layout.h"

// The Roll button. Any mouse button presses it, and what was pressed on it is let go on it wherever the mouse went.
class RollButton final : public PictureButton {
public:
    RollButton(QWidget* parent, Art& art, std::function<void()> cancelled);
    void SetDimmed(bool on);  // while another button lies on it

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::function<void()> cancelled_;
    Qt::MouseButtons held_;
    bool dimmed_ = false;
};

// The dark tray with the dice, and the Roll button with its lamps. Next Player and Show Board lie on
// it and take clicks whatever its state.
class DiceTray {
public:
    struct Events {
        std::function<void()> rollDown, rollUp, rollCancelled, nextPlayer, showBoard;
        std::function<void(int i)> die;  // held or released
    };

    DiceTray(QWidget* table, Art& art, const Events& events);

    void LayOut(int columns, int lastDieIndex);
    void SetPointers(const QCursor& hand, const QCursor& base);

    void SetRollPicture(RollPicture kind);
    void SetRollEnabled(bool on) { roll_->setEnabled(on); }
    void SetRollVisible(bool on) { roll_->setVisible(on); }
    void ShowFace(int i, int face);
    void ShowRollingFace(int i, int face);  // 2 to 6
    void ShowFree(int i);
    void ShowHeld(int i);
    void Hide(int i);
    void EnableDie(int i, bool on);
    void SetLamps(int n);
    void ShowNextPlayer(bool on);
    void ShowNextBoardButton(bool visible, bool enabled);
    void SetShowBoardCaption(const QString& caption) { showBoard_->SetCaption(caption); }

    QWidget& ShownDie(int i);  // the held or the free one
    // Leads a screen reader to the lamps, which tell of the roll and of all dice.
    void SayRoll(const QString& faces);

private:
    struct Die {
        Shape* frame;
        PictureButton* free;
        PictureButton* held;
    };

    void MakeDie(int i, QWidget* table, Art& art, const Events& events);
    void MakeRollButton(Art& art, const Events& events);
    Die& At(int i) { return dice_[i]; }

    Well* tray_;
    ByDie<Die> dice_{};
    Well* rollFrame_;
    RollButton* roll_;
    ByLamp<Picture*> darkLamps_{};
    ByLamp<Picture*> litLamps_{};
    QWidget* lamps_ = nullptr;  // what a screen reader finds in their place
    CaptionButton* nextPlayer_ = nullptr;
    CaptionButton* showBoard_ = nullptr;
};
