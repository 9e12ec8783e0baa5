#pragma once

#include <charconv>
#include <stdexcept>
#include <string_view>
#include <vector>

// A line that cannot be carried out; what() tells why.
struct BadLine : std::runtime_error {
    using runtime_error::runtime_error;
};

struct BadArgument : BadLine {
    BadArgument() : BadLine("bad argument") {}
};

// A command line without the blanks at its ends, cut at its blanks into words. It refers to the text it was made of.
struct ScriptLine {
    explicit ScriptLine(std::string_view line);

    bool Empty() const;  // blank or a comment
    std::string_view Command() const { return words.front(); }
    std::size_t Values() const { return words.size() - 1; }
    std::string_view Value(std::size_t number) const { return words[number]; }  // counted from 1
    std::string_view RestFrom(std::size_t number) const;  // value and all that follows; at least that one is there

    void ExpectValues(std::size_t atLeast, std::size_t atMost) const;  // throws BadArgument
    void ExpectValues(std::size_t count) const { ExpectValues(count, count); }

    std::string_view text;
    std::vector<std::string_view> words;
};

// The decimal number that the whole word is; throws BadArgument when it is none or does not lie in the range.
template <typename Number>
Number ParseNumber(std::string_view word, Number low, Number high) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc{} || end != word.data() + word.size() || number < low || number > high) throw BadArgument();
    return number;
}
