#include "core/start.h"

namespace {

bool StartWithWelcome(Game& game) {
    game.dialogs.frmWelcome(game);
    if (game.session.SettingsChanged) {
        game.store.SaveSettings(game.settings);
        game.session.SettingsChanged = false;
    }
    if (!game.session.PlayPressed) return false;
    game.dialogs.frmLuckyCup(game);
    return true;
}

}  // namespace

bool Start(Game& game) {
    game.settings = game.store.LoadSettings();
    if (game.settings.ShowDialog) return StartWithWelcome(game);
    if (game.settings.ShowSplash)
        game.dialogs.frmSplash(game);
    else
        game.dialogs.frmLuckyCup(game);
    return true;
}
