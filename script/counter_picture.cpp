#include "script/counter_picture.h"

std::string CounterText(const GlyphColumns& picture) {
    std::string text;
    for (const GlyphRun& run : picture.Runs()) {
        if (!text.empty()) text += ' ';
        text += run.glyph;
        text += '@' + std::to_string(run.x);
        const bool whole = run.first == 0 && run.last == glyphWidth - 1;
        if (!whole) text += '[' + std::to_string(run.first) + '-' + std::to_string(run.last) + ']';
    }
    return text;
}
