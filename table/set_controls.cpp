#include "table/set_controls.h"

#include "core/show.h"
#include "table/status_bar.h"

namespace {

void SetDice(Game& game) {
    const int last = maxDice - 1;
    if (game.settings.NumberOfDice == last)
        ShowDieFree(game, last);
    else
        HideDie(game, last);
}

// Before the first roll the table cannot be written, so what is shown is disabled.
void SetColumns(Game& game) {
    for (ScoreColumn column : allColumns) {
        const bool played = FourColumns(game.settings) || column == ScoreColumn::Rand;
        ShowColumnButtons(game, column, played);
        if (played) EnableColumnButtons(game, column, false);
    }
    game.view.LayOut(game.settings.NumberOfColumns, game.settings.NumberOfDice);
    game.view.SetFrameHeight(game.settings.NumberOfColumns);
}

void SetTitleAndPlayers(Game& game) {
    if (TwoPlayers(game.settings)) {
        SetTitleFor(game, game.settings.Player1);
        SetPanelText(game, 3, "0 : 0");
        SetShowBoardCaption(game, game.settings.Player1);
        return;
    }
    SetTitle(game, "Lucky Cup 2.3");
    ShowNextBoardButton(game, false, false);  // it would cover the Roll button
}

void SetMenusAndToolbar(Game& game) {
    const GameSettings& settings = game.settings;
    if (settings.hintAllways) game.session.HintsOn = true;
    SetHintButtonEnabled(game, !settings.hintAllways);
    game.session.SoundOn = settings.SoundEnabled;
    game.view.ShowChoice(MenuChoice::Hints, settings.hintAllways);
    game.view.ShowChoice(MenuChoice::Sounds, settings.SoundEnabled);
    game.view.ShowChoice(MenuChoice::Music, settings.BGMusicEnabled);
}

}  // namespace

void SetControls(Game& game) {
    SetStatusBar(game);
    SetDice(game);
    SetColumns(game);
    SetTitleAndPlayers(game);
    SetMenusAndToolbar(game);
}
