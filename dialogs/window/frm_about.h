#pragma once

#include "dialogs/window/dialog_window.h"

// Not modal: in its place the main window is disabled from here until this one has gone, whichever way it goes.
class frmAbout final : public DialogWindow {
public:
    frmAbout(QWidget& mainWindow, Game& game, Art& art);
    ~frmAbout() override { mainWindow_.setEnabled(true); }
    frmAbout(const frmAbout&) = delete;
    frmAbout& operator=(const frmAbout&) = delete;

    void done(int result) override;

private:
    QWidget& mainWindow_;
};
