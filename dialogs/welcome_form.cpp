#include "dialogs/welcome_form.h"

void Check1_Change(Game& game, WelcomeForm& form, bool checked) {
    if (checked == form.Check1) return;
    form.Check1 = checked;
    game.settings.ShowDialog = !checked;
    game.settings.ShowSplash = checked;
    game.session.SettingsChanged = true;
}

void cmdPlay_Click(Game& game) { game.session.PlayPressed = true; }

void cmdOptions_Click(Game& game, WelcomeForm& form) {
    game.dialogs.frmOptions(game);
    // By this change "None", chosen in the options while the box was not checked, becomes the splash.
    Check1_Change(game, form, !game.settings.ShowDialog);
}

void frmWelcome_Unload(Game& game) { game.shell.CloseHelp(); }
