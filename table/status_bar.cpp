#include "table/status_bar.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <utility>

#include "core/show.h"
#include "core/timing.h"

namespace {

// Twips, of the whole frame.
int WindowHeight(const GameSettings& settings) {
    if (TwoPlayers(settings)) return FourColumns(settings) ? tallestWindow : 8300;
    if (FourColumns(settings)) return settings.ShowStatusBar ? tallestWindow : 8300;
    return settings.ShowStatusBar ? 8270 : 8030;
}

void SetStatusBarForOne(Game& game) {
    SetPanelLayout(game, 1, 1, false);
    SetPanelLayout(game, 2, 2550, true);
    SetPanelLayout(game, 3, 1, false);
    SetPanelLayout(game, 4, 1230, true);
    SetPanelText(game, 1, game.settings.Player1);  // unseen, but asked for when a name changes
    SetPanelText(game, 2, "Roll the dice");
    SetWindowHeight(game, WindowHeight(game.settings));
    SetStatusBarVisible(game, game.settings.ShowStatusBar);
    ShowNextPlayer(game, false);
}

void SetStatusBarForTwo(Game& game) {
    SetStatusBarVisible(game, true);
    SetPanelLayout(game, 2, 1, false);
    SetPanelLayout(game, 1, 2000, true);
    SetPanelLayout(game, 4, 1, false);
    SetPanelLayout(game, 3, 1630, true);
    SetPanelText(game, 1, game.settings.Player1);
    SetWindowHeight(game, WindowHeight(game.settings));
}

std::string OneSecondLater(const std::string& clock) {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    char colon = ':';
    std::istringstream(clock) >> hours >> colon >> minutes >> colon >> seconds;
    const int time = (hours * 60 + minutes) * 60 + seconds + 1;
    std::ostringstream text;
    text << std::setfill('0');
    text << std::setw(2) << time / 3600 % 24 << ':' << std::setw(2) << time / 60 % 60 << ':' << std::setw(2)
         << time % 60;
    return text.str();
}

}  // namespace

void SetStatusBar(Game& game) {
    if (TwoPlayers(game.settings))
        SetStatusBarForTwo(game);
    else
        SetStatusBarForOne(game);
}

void ShowCurrentPlayer(Game& game, int choice) {
    if (choice == 2) SetPanelText(game, 1, game.settings.Player2);
    if (choice == 3) SetPanelText(game, 1, game.settings.Player1);
}

void tmrTimeElapsed_Timer(Game& game) {
    game.table.lblTimeElapsed = OneSecondLater(game.table.lblTimeElapsed);
    SetPanelText(game, 5, game.table.lblTimeElapsed);
}

void tmrRollDice_Timer(Game& game, StatusBarState& state) {
    if (++state.rollDiceTicks < 2) return;
    SetPanelText(game, 2, "Roll the dice");
    DisableTimer(game, Timer::tmrRollDice);
    state.rollDiceTicks = 0;
}

void tmrGameOver_Timer(Game& game, StatusBarState& state) {
    if (!std::exchange(state.gameOverRunning, true)) {
        SetPanelText(game, 2, "");
        SetPanelText(game, 4, "");
        SetTimerInterval(game, Timer::tmrGameOver, 2000);
        return;
    }
    SetTimerInterval(game, Timer::tmrGameOver, 150);
    std::string& text = game.session.GameOverText;
    std::rotate(text.begin(), text.begin() + 1, text.end());
    SetPanelText(game, 2, text);
}
