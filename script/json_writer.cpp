#include "script/json_writer.h"

#include <cstdint>

namespace {

using Byte = unsigned char;

// The length of the valid UTF-8 sequence that the text begins with, 0 for none.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<Byte>(text[i]) : Byte{0}; };
    const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0) == 0x80; };
    const Byte lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const bool overlong = lead == 0xE0 && byte(1) < 0xA0;
        const bool surrogate = lead == 0xED && byte(1) > 0x9F;
        return continues(1) && continues(2) && !overlong && !surrogate ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const bool overlong = lead == 0xF0 && byte(1) < 0x90;
        const bool tooHigh = lead == 0xF4 && byte(1) > 0x8F;
        return continues(1) && continues(2) && continues(3) && !overlong && !tooHigh ? 4 : 0;
    }
    return 0;
}

void AppendControl(std::string& out, Byte control) {
    constexpr std::string_view codes = "\b\f\n\r\t";
    constexpr std::string_view letters = "bfnrt";
    constexpr std::string_view digits = "0123456789abcdef";
    if (const auto place = codes.find(static_cast<char>(control)); place != codes.npos) {
        out += '\\';
        out += letters[place];
        return;
    }
    out += "\\u00";
    out += digits[control >> 4];
    out += digits[control & 15];
}

}  // namespace

void JsonWriter::Separate() {
    if (!first_) text_ += ',';
    first_ = false;
}

void JsonWriter::Begin(char bracket) {
    Separate();
    text_ += bracket;
    first_ = true;
}

void JsonWriter::End(char bracket) {
    text_ += bracket;
    first_ = false;
}

void JsonWriter::Key(std::string_view name) {
    Text(name);
    text_ += ':';
    first_ = true;
}

void JsonWriter::Literal(std::string_view literal) {
    Separate();
    text_ += literal;
}

void JsonWriter::Text(std::string_view text) {
    Separate();
    text_ += '"';
    while (!text.empty()) {
        const auto first = static_cast<Byte>(text.front());
        const std::size_t length = SequenceLength(text);
        if (length == 0) {
            text_ += "\uFFFD";
        } else if (first < 0x20) {
            AppendControl(text_, first);
        } else {
            if (first == '"' || first == '\\') text_ += '\\';
            text_ += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    text_ += '"';
}
