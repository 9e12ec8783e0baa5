#include "dialogs/qt_dialogs.h"

#include "dialogs/frm_end_game.h"
#include "dialogs/frm_options.h"
#include "dialogs/frm_the_winer_is.h"
#include "dialogs/message_box.h"

Answer QtDialogs::ShowMessage(const Message& message) {
    const EventGate::Open open(gate_);
    return ShowMessageBox(&mainWindow_, message);
}

void QtDialogs::frmEndGame(Game& game) {
    ::frmEndGame dialog(mainWindow_, game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}

void QtDialogs::frmTheWinerIs(Game& game) {
    ::frmTheWinerIs dialog(mainWindow_, game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}

void QtDialogs::frmOptions(Game& game) {
    ::frmOptions dialog(mainWindow_, game, art_);
    const EventGate::Open open(gate_);
    dialog.exec();
}
