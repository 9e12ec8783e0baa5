#pragma once

#include <QKeyEvent>
#include <optional>

#include "table/keys.h"

// What a key of the main window stands for besides Enter, space and the shortcuts of the menus. Nothing for another
// key, and for one that is held down and must not repeat.
std::optional<PlayerKey> PlayerKeyOf(const QKeyEvent& event);
