#include "core/player_texts.h"

std::string TitleFor(const std::string& player) { return "Lucky Cup - " + player; }
std::string ShowBoardCaption(const std::string& player) { return "    Show      " + player + "'s  Board"; }

bool TitleNames(const Game& game, const std::string& player) { return game.table.title == TitleFor(player); }

bool CaptionNames(const Game& game, const std::string& player) {
    return game.table.showBoard.caption == ShowBoardCaption(player);
}
