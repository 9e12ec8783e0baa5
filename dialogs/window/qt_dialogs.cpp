#include "dialogs/window/qt_dialogs.h"

#include <QApplication>

#include "core/game.h"
#include "dialogs/welcome_form.h"
#include "dialogs/window/frm_about.h"
#include "dialogs/window/frm_end_game.h"
#include "dialogs/window/frm_options.h"
#include "dialogs/window/frm_quick_start.h"
#include "dialogs/window/frm_scores2.h"
#include "dialogs/window/frm_splash.h"
#include "dialogs/window/frm_the_winer_is.h"
#include "dialogs/window/frm_welcome.h"
#include "kit/message_box.h"

QWidget& QtDialogs::Owner(const Game& game) const {
    return game.session.OpenedFromGame || !firstWindow_ ? mainWindow_ : *firstWindow_;
}

Answer QtDialogs::ShowMessage(const Message& message) {
    const EventGate::Open open(gate_);
    QWidget* const window = firstWindow_ ? firstWindow_ : &mainWindow_;
    QWidget* const dialog = QApplication::activeModalWidget();
    return ShowMessageBox(dialog ? dialog : window, art_, message);
}

void QtDialogs::ShowModal(QDialog& dialog) {
    dialog.setWindowModality(Qt::WindowModal);
    const EventGate::Open open(gate_);
    dialog.exec();
}

void QtDialogs::frmWelcome(Game& game) {
    ::frmWelcome dialog(game, art_);
    SetFirstWindow(&dialog);
    ShowModal(dialog);
    SetFirstWindow(nullptr);
    frmWelcome_Unload(game);
}

void QtDialogs::frmEndGame(Game& game) {
    ::frmEndGame dialog(Owner(game), game, art_);
    ShowModal(dialog);
}

void QtDialogs::frmTheWinerIs(Game& game) {
    ::frmTheWinerIs dialog(Owner(game), game, art_);
    ShowModal(dialog);
}

void QtDialogs::frmScores2(Game& game) {
    ::frmScores2 dialog(Owner(game), game, art_);
    ShowModal(dialog);
}

void QtDialogs::frmOptions(Game& game) {
    ::frmOptions dialog(Owner(game), game, art_);
    ShowModal(dialog);
}

void QtDialogs::frmQuickStart(Game& game) {
    QWidget& over = Owner(game);
    if (!game.session.OpenedFromGame) {
        ::frmQuickStart dialog(over, &over, game, art_);
        return ShowModal(dialog);
    }
    if (!guide_ || !guide_->isVisible()) guide_ = std::make_unique<::frmQuickStart>(over, nullptr, game, art_);
    BringToFront(*guide_);
}

void QtDialogs::frmAbout(Game& game) {
    about_.reset();  // or it would enable the table that the next one has disabled
    about_ = std::make_unique<::frmAbout>(mainWindow_, game, art_);
    BringToFront(*about_);
}

void QtDialogs::frmSplash(Game& game) {
    auto splash = std::make_unique<::frmSplash>(art_, [this, &game] { frmLuckyCup(game); });
    splash->ShowSplash();
    splash_ = std::move(splash);
}
