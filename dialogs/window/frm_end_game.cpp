#include "dialogs/window/frm_end_game.h"

#include <QPushButton>

#include "core/end_of_game.h"
#include "kit/sized_widgets.h"

frmEndGame::frmEndGame(QWidget& owner, Game& game, Art& art)
    : DialogWindow(owner, "frmEndGame", "Finish Game?", 3675, 1020) {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    auto* finish = new QPushButton("&Finish Game", this);
    finish->setObjectName("cmdFinish");
    Put(*finish, {90, 285, 1665, 645});
    finish->setDefault(true);
    auto* undo = new QPushButton("&Undo Last Move", this);
    undo->setObjectName("cmdUndo");
    Put(*undo, {1920, 285, 1665, 645});
    Equip(game, art, {finish, undo});
    PlaceOverOwner(2200);
    frmEndGame_Load(game);
    connect(finish, &QPushButton::clicked, this, [this, &game] {
        cmdFinish_Click(game);
        accept();
    });
    connect(undo, &QPushButton::clicked, this, [this, &game] {
        cmdUndo_Click(game);
        accept();
    });
}
