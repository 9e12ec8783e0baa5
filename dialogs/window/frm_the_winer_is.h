#pragma once

#include <QLabel>

#include "dialogs/window/dialog_window.h"
#include "kit/twips.h"

// The result of a two-player game. Opening it plays the sound of the verdict.
class frmTheWinerIs final : public DialogWindow {
public:
    frmTheWinerIs(QWidget& owner, Game& game, Art& art);

private:
    QLabel* AddLabel(const char* name, const Place& place, int fontPixels, const std::string& text,
                     const QString& tail = {});
};
