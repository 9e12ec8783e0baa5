#include "menus/menu_colours.h"

#include <algorithm>
#include <iterator>

namespace {
struct MenuColour {
    QLatin1StringView key;
    QColor onSkin, onPlain;
};

constexpr MenuColour Same(const char* key, QColor colour) { return {QLatin1StringView(key), colour, colour}; }

constexpr MenuColour menuColours[] = {
    {QLatin1StringView("selected"), {50, 50, 50}, {186, 186, 204}},
    {QLatin1StringView("bordercolor"), {255, 255, 255}, {85, 85, 118}},
    Same("selectedtext", {255, 255, 255}),
    Same("generaltext", {0, 0, 0}),
    Same("menutext", {0, 0, 0}),
    Same("menubg", {58, 110, 165}),
    Same("body", {58, 110, 165}),
    Same("table1bg", {223, 223, 223}),
    Same("table2bg", {241, 241, 241}),
    Same("headingbg", {128, 128, 166}),
    Same("headingtext", {231, 231, 255}),
};
}  // namespace

QColor GetMenuColor(QStringView key, bool SkinOn) {
    const auto* const colour = std::ranges::find_if(
        menuColours, [key](const MenuColour& entry) { return key.compare(entry.key, Qt::CaseInsensitive) == 0; });
    if (colour == std::end(menuColours)) return Qt::black;
    return SkinOn ? colour->onSkin : colour->onPlain;
}
