#pragma once

#include <filesystem>
#include <string>

#include "core/game_session.h"

// A file in a folder under the program's own.
inline std::string ProgramFile(const GameSession& session, const std::string& folder, const std::string& name) {
    return session.AppPath + folder + static_cast<char>(std::filesystem::path::preferred_separator) + name;
}
