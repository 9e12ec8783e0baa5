#include "script/script_line.h"

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace

ScriptLine::ScriptLine(std::string_view line) : text(Trimmed(line)) {
    for (std::size_t first = 0; first < text.size();) {
        const auto end = std::min(text.find_first_of(blanks, first), text.size());
        words.push_back(text.substr(first, end - first));
        first = std::min(text.find_first_not_of(blanks, end), text.size());
    }
}

bool ScriptLine::Empty() const { return text.empty() || text.front() == '#'; }

std::string_view ScriptLine::RestFrom(std::size_t number) const {
    return text.substr(static_cast<std::size_t>(words[number].data() - text.data()));
}

void ScriptLine::ExpectValues(std::size_t atLeast, std::size_t atMost) const {
    if (Values() < atLeast || Values() > atMost) throw BadArgument();
}
