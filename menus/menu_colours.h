#pragma once

#include <QColor>
#include <QStringView>

// The colour of a part of the menus by its key, such as "SelectedText", in any case; black for a key that is none.
// SkinOn: the menus lie on the tiled picture.
QColor GetMenuColor(QStringView key, bool SkinOn);
