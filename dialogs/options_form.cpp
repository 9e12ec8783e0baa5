#include "dialogs/options_form.h"

#include "core/show.h"

OptionsForm frmOptions_Load(const Game& game) {
    const GameSettings& settings = game.settings;
    const bool onePlayer = !TwoPlayers(settings);
    OptionsForm form;
    form.SavedVolume = settings.BGMusicVolume;
    form.optYahtzee = !FourColumns(settings);
    form.opt5Dice = FiveDice(settings);
    form.opt1Player = onePlayer;
    form.txtName1 = settings.Player1;
    form.txtName2 = settings.Player2;
    form.txtName2Enabled = !onePlayer;
    form.chkConfirmExit = settings.ConfirmOnExit;
    form.chkQuitGame = settings.ConfirmQuitGame;
    form.chkShowStatusBarEnabled = onePlayer;
    form.chkShowStatusBar = !onePlayer || settings.ShowStatusBar;
    if (settings.ShowDialog)
        form.showAtStartUp = StartUpWindow::Dialog;
    else if (settings.ShowSplash)
        form.showAtStartUp = StartUpWindow::Splash;
    if (settings.BGMusicEnabled) form.sldVolume = settings.BGMusicVolume;
    return form;
}

void opt1Player_Click(OptionsForm& form) {
    form.opt1Player = true;
    form.chkShowStatusBarEnabled = true;
    form.txtName2Enabled = false;
}

void opt2Players_Click(OptionsForm& form) {
    form.opt1Player = false;
    form.chkShowStatusBar = true;
    form.chkShowStatusBarEnabled = false;
    form.txtName2Enabled = true;
}

void sldVolume_Change(Game& game, OptionsForm& form, int volume) {
    form.sldVolume = volume;
    game.settings.BGMusicVolume = volume;
}

namespace {

// Runs while Player1 still has its old value, which tells whose name the window shows.
void CarryNamesIntoWindow(Game& game, const OptionsForm& form) {
    if (!game.session.OpenedFromGame) return;
    const bool first = game.table.panels[1].text == game.settings.Player1;
    const std::string& shown = first ? form.txtName1 : form.txtName2;
    SetPanelText(game, 1, shown);
    SetTitleFor(game, shown);
    SetShowBoardCaption(game, form.txtName1);
}

}  // namespace

void OptionsOk(Game& game, const OptionsForm& form) {
    GameSettings& settings = game.settings;
    settings.NumberOfDice = form.opt5Dice ? 4 : 5;
    settings.NumberOfColumns = form.optYahtzee ? 1 : 4;
    settings.NumberOfPlayers = form.opt1Player ? 1 : 2;
    CarryNamesIntoWindow(game, form);
    settings.Player1 = form.txtName1;
    settings.Player2 = form.txtName2;
    settings.ConfirmOnExit = form.chkConfirmExit;
    settings.ConfirmQuitGame = form.chkQuitGame;
    settings.ShowDialog = form.showAtStartUp == StartUpWindow::Dialog;
    settings.ShowStatusBar = form.chkShowStatusBar;
    settings.ShowSplash = form.showAtStartUp == StartUpWindow::Splash;
    game.session.SettingsChanged = true;
}

void OptionsCancel(Game& game, OptionsForm& form) {
    sldVolume_Change(game, form, form.SavedVolume);
    game.session.SettingsChanged = false;
}
