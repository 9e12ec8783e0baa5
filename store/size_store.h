#pragma once

// The size that the player has chosen for the program, in per cent. It stands in the user's settings file beside the
// settings of the game, in a group of its own.

int StoredSize();  // what stands there, if it is a whole number; 0 for none
void StoreSize(int percent);
