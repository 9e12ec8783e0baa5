#include "store/windows_1252.h"

#include <QString>
#include <algorithm>
#include <array>

namespace {

// Bytes 0x80 to 0x9F; all others are the character of the same number. Five of them name no character and keep their
// number too. A table of our own, since Qt knows this character set only where it was built with ICU.
constexpr char32_t firstOddByte = 0x80;
constexpr std::array<char32_t, 32> oddBytes{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsOdd(char32_t byte) { return byte >= firstOddByte && byte < firstOddByte + oddBytes.size(); }

char ToByte(char32_t character) {
    if (character <= 0xFF && !IsOdd(character)) return static_cast<char>(character);
    const auto* odd = std::find(oddBytes.begin(), oddBytes.end(), character);
    if (odd == oddBytes.end()) return '?';
    return static_cast<char>(firstOddByte + static_cast<char32_t>(odd - oddBytes.begin()));
}

char32_t FromByte(char byte) {
    const char32_t number = static_cast<unsigned char>(byte);
    return IsOdd(number) ? oddBytes.at(number - firstOddByte) : number;
}

}  // namespace

QByteArray ToWindows1252(const std::string& text) {
    const std::u32string characters = QString::fromStdString(text).toStdU32String();
    QByteArray bytes(static_cast<qsizetype>(characters.size()), '\0');
    std::transform(characters.begin(), characters.end(), bytes.begin(), ToByte);
    return bytes;
}

std::string FromWindows1252(const QByteArray& bytes) {
    std::u32string characters(static_cast<std::size_t>(bytes.size()), U'\0');
    std::transform(bytes.begin(), bytes.end(), characters.begin(), FromByte);
    return QString::fromStdU32String(characters).toStdString();
}
