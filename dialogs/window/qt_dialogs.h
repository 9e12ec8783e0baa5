#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "core/ports/dialogs.h"
#include "kit/art.h"
#include "kit/event_gate.h"

// The windows around the main one. A modal one stands over its owner, the main window once the dialog was opened from
// it, before that the first window. The timers of the table go on meanwhile, and what stands beside the owner, such as
// the help, can be used.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(QWidget& mainWindow, EventGate& gate, Art& art) : mainWindow_(mainWindow), gate_(gate), art_(art) {}

    void SetFirstWindow(QWidget* window) { firstWindow_ = window; }  // null when it has closed
    void SetShowMainWindow(std::function<void()> show) { showMainWindow_ = std::move(show); }

    Answer ShowMessage(const Message& message) override;
    void frmWelcome(Game& game) override;
    void frmEndGame(Game& game) override;
    void frmTheWinerIs(Game& game) override;
    void frmScores2(Game& game) override;
    void frmOptions(Game& game) override;
    void frmQuickStart(Game& game) override;
    void frmAbout(Game& game) override;
    void frmSplash(Game& game) override;
    void frmLuckyCup(Game&) override { showMainWindow_(); }
    void UnloadQuickStart() override { guide_.reset(); }
    void UnloadSplash() override { splash_.reset(); }

private:
    QWidget& Owner(const Game& game) const;
    void ShowModal(QDialog& dialog);

    QWidget& mainWindow_;
    QWidget* firstWindow_ = nullptr;
    EventGate& gate_;
    Art& art_;
    std::function<void()> showMainWindow_;
    std::unique_ptr<QWidget> splash_, guide_, about_;
};
