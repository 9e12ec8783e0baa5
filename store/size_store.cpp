#include "store/size_store.h"

#include "store/settings_store.h"

namespace {
constexpr const char* name = "Window/Size";
}

int StoredSize() { return QString::fromStdString(LoadText(UserSettingsPath(), name)).toInt(); }

void StoreSize(int percent) { SaveTexts(UserSettingsPath(), {{name, std::to_string(percent)}}); }
