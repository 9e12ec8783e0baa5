#include "sound/media_command.h"

#include <algorithm>
#include <charconv>

namespace {

bool TakePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

std::optional<MediaAlias> TakeAlias(std::string_view& text) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    if (word == "myMP3") return MediaAlias::myMP3;
    if (word == "song") return MediaAlias::song;
    return std::nullopt;
}

// A whole number of any size; what lies outside the scale is the nearest end of it.
std::optional<int> Volume(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument || end != text.data() + text.size()) return std::nullopt;
    if (error == std::errc::result_out_of_range) return text.front() == '-' ? 0 : fullVolume;
    return std::clamp(number, 0, fullVolume);
}

// The path may hold blanks, quotes and even the words of the command, so it ends where they stand last.
std::optional<MediaCommand> ParseOpen(std::string_view text) {
    const std::string_view afterPath = TakePrefix(text, "\"") ? "\" alias " : " type MPEGVideo alias ";
    const std::size_t end = text.rfind(afterPath);
    if (end == std::string_view::npos) return std::nullopt;
    std::string_view name = text.substr(end + afterPath.size());
    const std::optional<MediaAlias> alias = TakeAlias(name);
    if (!alias || !name.empty()) return std::nullopt;
    return MediaCommand{MediaVerb::Open, *alias, std::string(text.substr(0, end))};
}

struct Form {
    std::string_view beforeAlias, afterAlias;
    MediaVerb verb;
};

constexpr Form forms[] = {
    {"play ", "", MediaVerb::Play},
    {"play ", " from 0", MediaVerb::PlayFromStart},
    {"pause ", "", MediaVerb::Pause},
    {"resume ", "", MediaVerb::Resume},
    {"close ", "", MediaVerb::Close},
    {"status ", " position", MediaVerb::Position},
    {"status ", " length", MediaVerb::Length},
};

}  // namespace

std::optional<MediaCommand> ParseMediaCommand(std::string_view text) {
    if (TakePrefix(text, "open ")) return ParseOpen(text);
    if (TakePrefix(text, "setaudio ")) {
        const std::optional<MediaAlias> alias = TakeAlias(text);
        if (!alias || !TakePrefix(text, " Volume to ")) return std::nullopt;
        const std::optional<int> volume = Volume(text);
        if (!volume) return std::nullopt;
        return MediaCommand{MediaVerb::Volume, *alias, {}, *volume};
    }
    for (const Form& form : forms) {
        std::string_view rest = text;
        if (!TakePrefix(rest, form.beforeAlias)) continue;
        const std::optional<MediaAlias> alias = TakeAlias(rest);
        if (alias && rest == form.afterAlias) return MediaCommand{form.verb, *alias};
    }
    return std::nullopt;
}
