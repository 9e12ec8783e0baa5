#include "table/main_window.h"

#include "core/hints.h"
#include "core/music.h"
#include "core/show.h"
#include "core/timing.h"
#include "table/set_controls.h"

void Form_Load(Game& game) {
    game.dice.LastDieIndex = game.settings.NumberOfDice;
    game.view.SetFrameHeight(game.settings.NumberOfColumns);
    ShowHintColumn(game);
    game.session.FirstRollPending = true;
    game.session.RollAllowed = true;
    game.session.NextUpRow = rowLuckyCup;
    SetControls(game);
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) {
        game.dice.RollFlags[i] = true;
        EnableDie(game, i, false);
        ShowDieFree(game, i);
    }
    SetUndoEnabled(game, false);
    SetRedoEnabled(game, false);
    game.table.lblTimeElapsed = "00:00:00";
    EnableTimer(game, Timer::tmrTimeElapsed);
    if (game.settings.BGMusicEnabled) EnableTimer(game, Timer::Timer3);
}

bool Form_QueryUnload(Game& game) {
    if (game.settings.ConfirmOnExit) {
        const Answer answer =
            game.dialogs.ShowMessage({"Confirm", "Exit Lucky Cup?", MessageIcon::Question, MessageButtons::OkCancel});
        if (answer == Answer::Cancel) return false;
    }
    Form_Unload(game);
    return true;
}

void Form_Unload(Game& game) {
    game.store.SaveSettings(game.settings);
    game.dialogs.UnloadSplash();
    game.shell.CloseHelp();
    game.dialogs.UnloadQuickStart();
    if (game.settings.BGMusicEnabled) StopMusic(game);
    CloseSong(game);
}

void Form_Resize(Game& game, bool minimized) {
    if (!game.settings.BGMusicEnabled) return;
    if (minimized) {
        DisableTimer(game, Timer::Timer3);
        PauseMusic(game);
    } else {
        EnableTimer(game, Timer::Timer3);
        ResumeMusic(game);
    }
}
