#pragma once

#include <string>

#include "core/game.h"

enum class StartUpWindow { None, Splash, Dialog };

// The controls of frmOptions, free of any window: the dialog shows them and passes on what the user does. A control
// that is disabled takes no change.
struct OptionsForm {
    bool optYahtzee = false;  // else optYamb
    bool opt5Dice = false;    // else opt6Dice
    bool opt1Player = false;  // else opt2Players
    std::string txtName1, txtName2;
    bool txtName2Enabled = false;
    bool chkShowStatusBar = false;
    bool chkShowStatusBarEnabled = false;
    bool chkQuitGame = false;
    bool chkConfirmExit = false;
    StartUpWindow showAtStartUp = StartUpWindow::None;
    int sldVolume = defaultVolume;
    int SavedVolume = defaultVolume;
};

OptionsForm frmOptions_Load(const Game& game);
void opt1Player_Click(OptionsForm& form);
void opt2Players_Click(OptionsForm& form);
void sldVolume_Change(Game& game, OptionsForm& form, int volume);  // 0 to fullVolume, heard at once
void OptionsOk(Game& game, const OptionsForm& form);
void OptionsCancel(Game& game, OptionsForm& form);
