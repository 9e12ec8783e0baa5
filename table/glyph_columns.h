#pragma once

#include <array>
#include <vector>

inline constexpr int counterWidth = 160;  // pixels
inline constexpr int counterHeight = 22;
inline constexpr int glyphWidth = 13;
inline constexpr int glyphHeight = 17;
inline constexpr int glyphTop = 4;

// Neighbouring columns of one glyph, as far as they are still to be seen.
struct GlyphRun {
    char glyph;       // '0' to '9' or '-'
    int x;            // where the glyph's first column stands, seen or not
    int first, last;  // the columns seen, 0 to 12
};

// What a counter picture shows, column by column: all glyphs stand at one height, so that a column of pixels is either
// blank or one column of one glyph. Kept like this a picture can be copied whole, overdrawn in part and shown sharp at
// any scale, with no number behind it.
class GlyphColumns {
public:
    void Draw(char glyph, int x);        // over whatever stood there; columns beyond the edges are lost
    void Erase(int x);                   // blanks the columns of a glyph that begins at x
    std::vector<GlyphRun> Runs() const;  // from left to right

private:
    struct Column {
        char glyph = 0;  // 0: blank
        int origin = 0;  // x of the glyph's first column

        bool operator==(const Column&) const = default;
    };

    void Fill(int x, Column column);

    std::array<Column, counterWidth> columns_{};
};
