#include "table/glyph_columns.h"

#include <algorithm>

void GlyphColumns::Draw(char glyph, int x) { Fill(x, {glyph, x}); }

void GlyphColumns::Erase(int x) { Fill(x, {}); }

void GlyphColumns::Fill(int x, Column column) {
    const int first = std::clamp(x, 0, counterWidth);
    const int last = std::clamp(x + glyphWidth, 0, counterWidth);
    std::fill(columns_.begin() + first, columns_.begin() + last, column);
}

std::vector<GlyphRun> GlyphColumns::Runs() const {
    std::vector<GlyphRun> runs;
    for (auto begin = columns_.begin(); begin != columns_.end();) {
        const Column shown = *begin;
        const auto end = std::find_if(begin, columns_.end(), [&](const Column& column) { return column != shown; });
        const int first = static_cast<int>(begin - columns_.begin()) - shown.origin;
        const int last = static_cast<int>(end - columns_.begin()) - shown.origin - 1;
        if (shown.glyph != 0) runs.push_back({shown.glyph, shown.origin, first, last});
        begin = end;
    }
    return runs;
}
