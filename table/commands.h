#pragma once

#include "core/game.h"

// The menu entries that switch a choice. Each is run only while its choice stands the other way.
void mnuHintsByRequest2_Click(Game& game);
void mnuHintsAllways2_Click(Game& game);
void mnuSoundsOn2_Click(Game& game);
void mnuSoundsOff2_Click(Game& game);
void mnuMusicOn2_Click(Game& game);
void mnuMusicOff2_Click(Game& game);

void mnuScores_Click(Game& game);
void mnuQuickStar_Click(Game& game);
void mnuContents_Click(Game& game);
void mnuAbout_Click(Game& game);
void mnuGoToWeb_Click(Game& game);
void mnuContact_Click(Game& game);

// The toolbar keys that are more than a menu entry.
void tbHint_Click(Game& game);
void tbSound_Click(Game& game);
void tbBGmusic_Click(Game& game);
