#include "store/size_store.h"

#include <QSettings>

namespace {
constexpr const char* key = "Window/Size";
}

int StoredSize() {
    QSettings file("LuckyCup", "LuckyCup2.2");
    file.setFallbacksEnabled(false);
    return file.value(key).toInt();
}

void StoreSize(int percent) { QSettings("LuckyCup", "LuckyCup2.2").setValue(key, percent); }
