#include "sound/media_command.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

std::string TextOf(const std::optional<MediaCommand>& command) {
    constexpr std::array verbs{"Open", "Play", "PlayFromStart", "Pause", "Resume", "Close", "Position", "Length"};
    if (!command) return "none";
    const auto& [verb, alias, path, volume] = *command;
    const std::string of = alias == MediaAlias::song ? " song" : " myMP3";
    if (verb == MediaVerb::Volume) return "Volume" + of + ' ' + std::to_string(volume);
    return verbs.at(static_cast<std::size_t>(verb)) + of + (path.empty() ? "" : ' ' + path);
}

TEST(MediaCommand, IsReadOrNone) {
    std::ifstream in(CASES "media_commands.txt");
    int cases = 0;
    for (std::string line; std::getline(in, line);) {
        if (line[0] == '#') continue;
        const auto end = line.rfind("| ");
        const std::string text = line.substr(1, end - 1);
        EXPECT_EQ(TextOf(ParseMediaCommand(text)), line.substr(end + 2)) << text;
        ++cases;
    }
    EXPECT_EQ(cases, 51);
}

}  // namespace
