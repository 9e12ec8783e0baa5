#include "table/commands.h"

#include "core/effects.h"
#include "core/hints.h"
#include "core/links.h"
#include "core/music.h"
#include "core/show.h"
#include "core/timing.h"

void mnuHintsByRequest2_Click(Game& game) {
    game.session.HintsOn = false;
    game.settings.hintAllways = false;
    ShowHintColumn(game);
    SetHintButtonEnabled(game, true);
    game.view.ShowChoice(MenuChoice::Hints, false);
}

void mnuHintsAllways2_Click(Game& game) {
    if (game.session.GameInProgress) ShowHints(game);
    game.session.HintsOn = true;
    game.settings.hintAllways = true;
    ShowHintColumn(game);
    SetHintButtonEnabled(game, false);
    game.view.ShowChoice(MenuChoice::Hints, true);
    PlayEffect(game, "hint");
}

void mnuSoundsOn2_Click(Game& game) {
    game.session.SoundOn = true;
    game.settings.SoundEnabled = true;
    game.view.ShowChoice(MenuChoice::Sounds, true);
}

void mnuSoundsOff2_Click(Game& game) {
    game.session.SoundOn = false;
    game.settings.SoundEnabled = false;
    game.view.ShowChoice(MenuChoice::Sounds, false);
}

void mnuMusicOn2_Click(Game& game) {
    game.settings.BGMusicEnabled = true;
    EnableTimer(game, Timer::Timer3);
    game.view.ShowChoice(MenuChoice::Music, true);
}

void mnuMusicOff2_Click(Game& game) {
    game.settings.BGMusicEnabled = false;
    StopMusic(game);
    CloseSong(game);
    DisableTimer(game, Timer::Timer3);
    game.view.ShowChoice(MenuChoice::Music, false);
}

void mnuScores_Click(Game& game) {
    game.session.OpenedFromGame = true;
    game.session.ShowScoreResult = false;
    game.dialogs.frmScores2(game);
}

void mnuQuickStar_Click(Game& game) {
    game.session.OpenedFromGame = true;
    game.dialogs.frmQuickStart(game);
}

void mnuContents_Click(Game& game) { game.shell.ShowHelpContents(); }
void mnuAbout_Click(Game& game) { game.dialogs.frmAbout(game); }
void mnuGoToWeb_Click(Game& game) { OpenWebSite(game.shell); }
void mnuContact_Click(Game& game) { OpenMailClient(game.shell); }

void tbHint_Click(Game& game) {
    GameSession& session = game.session;
    if (session.MayHint && !session.HintsOn) {
        session.HintsRequested = true;
        ShowHints(game);
        ShowHintColumn(game);
        PlayEffect(game, "hint");
    }
    session.MayHint = false;
}

void tbSound_Click(Game& game) {
    if (game.session.SoundOn)
        mnuSoundsOff2_Click(game);
    else
        mnuSoundsOn2_Click(game);
}

void tbBGmusic_Click(Game& game) {
    if (game.settings.BGMusicEnabled)
        mnuMusicOff2_Click(game);
    else
        mnuMusicOn2_Click(game);
}
