#include "dialogs/window/qt_dialogs.h"

#include <QApplication>

#include "core/game.h"
#include "dialogs/window/frm_end_game.h"
#include "dialogs/window/frm_options.h"
#include "dialogs/window/frm_scores2.h"
#include "dialogs/window/frm_the_winer_is.h"
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

void QtDialogs::frmEndGame(Game& game) {
    ::frmEndGame dialog(Owner(game), game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}

void QtDialogs::frmTheWinerIs(Game& game) {
    ::frmTheWinerIs dialog(Owner(game), game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}

void QtDialogs::frmScores2(Game& game) {
    ::frmScores2 dialog(Owner(game), game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}

void QtDialogs::frmOptions(Game& game) {
    ::frmOptions dialog(Owner(game), game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}
