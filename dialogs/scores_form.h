#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/game.h"

using ScoreCells = std::array<std::string, 4>;  // place, name, score, date

// frmScores2, the hall of fame, free of any window: the window shows it and passes on what the user does. Nothing of it
// outlives the window but Check1, which becomes a setting.
struct ScoresForm {
    std::vector<ScoreCells> rows;  // of LVScores: twenty, or none where the file could not be read
    bool fullRowSelect = false;
    int selectedRow = 0;  // 1 to 20, 0 for none
    int fileOnShow = 0;   // 1 to 4, the one that the rows are of
    int tab = 0;          // 0 to 3, the file of which is one higher
    bool IgnoreTabClick = true;
    bool cmdClearTableEnabled = true;
    bool Check1 = false;           // which are the grid lines
    bool lblScoreVisible = false;  // decides between the two layouts
    std::string lblScore;          // two lines, parted by CR and LF
};

// Reads the table of the variant in play. After a game it also tells how that came out, with a jingle.
ScoresForm frmScores2_Load(Game& game);
// These three return whether the rows are new ones, of which none is selected.
bool SSTab1_MouseDown(Game& game, ScoresForm& form, int tab);  // ahead of the click
bool SSTab1_Click(Game& game, ScoresForm& form, int tab);      // a change to this tab, by whatever means
bool cmdClearTable_Click(Game& game, ScoresForm& form);        // asks, and deletes the file of the tab
void frmScores2_Unload(Game& game, const ScoresForm& form);    // however it is closed
