#pragma once

#include <string>

#include "core/game.h"

// The texts that name a player; they tell whose board is on the table.
std::string TitleFor(const std::string& player);
std::string ShowBoardCaption(const std::string& player);

bool TitleNames(const Game& game, const std::string& player);
bool CaptionNames(const Game& game, const std::string& player);
