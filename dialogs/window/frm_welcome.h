#pragma once

#include <QCheckBox>
#include <functional>

#include "dialogs/welcome_form.h"
#include "dialogs/window/dialog_window.h"
#include "kit/twips.h"

class QPushButton;

// The pictures that it shows first.
std::vector<Art::Wanted> WelcomePictures(qreal devicePixelRatio);

// The start dialog, in the middle of the screen. Enter is Play; Escape and the close box are Exit.
class frmWelcome final : public DialogWindow {
public:
    frmWelcome(Game& game, Art& art);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPushButton* AddButton(const char* name, const char* caption, const Place& place, void (frmWelcome::*click)());
    void Play();
    void Options();
    void QuickStart();
    void TopScores();
    void Exit();
    void PlaceOnScreen();

    Game& game_;
    WelcomeForm form_;
    QCheckBox* Check1_;
    std::function<void()> afterFirstPicture_;
};
