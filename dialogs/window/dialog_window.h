#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "core/game.h"
#include "kit/art.h"

// What the game's dialogs have in common: a client area of a fixed size in twips, the game's pointers and a place over
// the window that owns them.
class DialogWindow : public QDialog {
public:
    DialogWindow(QWidget& owner, const char* name, const char* caption, int widthInTwips, int heightInTwips)
        : DialogWindow(&owner, name, caption, widthInTwips, heightInTwips) {}
    // Without an owner the window stands by itself.
    DialogWindow(QWidget* owner, const char* name, const char* caption, int widthInTwips, int heightInTwips);

    // Centre upon centre, and so far below.
    void PlaceOverOwner(int twipsBelow = 0) { PlaceOver(*parentWidget(), twipsBelow); }
    // The same over any window, but not off its screen. share: how much of the difference in height lies above this
    // window.
    void PlaceOver(const QWidget& window, int twipsBelow = 0, double share = 0.5);
    void SetPointers(const Game& game, Art& art, std::vector<QWidget*> clickable);

protected:
    void changeEvent(QEvent* event) override;

private:
    std::function<void()> setPointers_;  // once more, at another size
};

// Opens the window, or brings the open one to the front.
void BringToFront(QWidget& window);

// The text, cut before its tail where it is too wide for the width in pixels.
QString FittedText(const QString& text, const QString& tail, const QFont& font, int width);
