#pragma once

#include <QTextBrowser>

#include "dialogs/window/dialog_window.h"

// The guide, centred over a window. With an owner it can be shown modal; without one it stands by itself.
class frmQuickStart final : public DialogWindow {
public:
    frmQuickStart(const QWidget& over, QWidget* owner, const Game& game, Art& art);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowGuide();
    void Print();

    Art& art_;
    QTextBrowser* RichTextBox1_;
};
