#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/game_settings.h"

enum class MediaAlias { myMP3, song };
enum class MediaVerb { Open, Play, PlayFromStart, Pause, Resume, Close, Position, Length, Volume };

struct MediaCommand {
    MediaVerb verb;
    MediaAlias alias;
    std::string path = {};  // of Open
    int volume = 0;         // of Volume, 0 to fullVolume

    bool operator==(const MediaCommand&) const = default;
};

// Reads a command of the media service: "open PATH type MPEGVideo alias A", "open "PATH" alias A", "play A",
// "play A from 0", "pause A", "resume A", "close A", "status A position", "status A length" and
// "setaudio A Volume to N". Nothing for any other text, also for one that names another alias.
std::optional<MediaCommand> ParseMediaCommand(std::string_view text);
