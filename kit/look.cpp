#include "kit/look.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QToolTip>

#include "kit/controls.h"
#include "kit/sized_style.h"

namespace {
struct RoleColour {
    QPalette::ColorRole role;
    QRgb colour;
};

constexpr RoleColour lightColours[] = {
    {QPalette::Window, 0xFFEBECF6},      {QPalette::WindowText, 0xFF101010},
    {QPalette::Base, 0xFFFFFFFF},        {QPalette::AlternateBase, 0xFFF1F1F1},
    {QPalette::Text, 0xFF101010},        {QPalette::Button, 0xFFDEE4F2},
    {QPalette::ButtonText, 0xFF101010},  {QPalette::BrightText, 0xFFFFFFFF},
    {QPalette::ToolTipBase, 0xFFFFFFE1}, {QPalette::ToolTipText, 0xFF101010},
    {QPalette::Highlight, 0xFF3563B8},   {QPalette::HighlightedText, 0xFFFFFFFF},
    {QPalette::Link, 0xFF1F4FA8},        {QPalette::LinkVisited, 0xFF5B3A91},
    {QPalette::Light, 0xFFFFFFFF},       {QPalette::Midlight, 0xFFF4F5FB},
    {QPalette::Mid, 0xFFAEB2C8},         {QPalette::Dark, 0xFF868AA0},
    {QPalette::Shadow, 0xFF505050},      {QPalette::PlaceholderText, 0xFF707070},
};

constexpr RoleColour disabledColours[] = {
    {QPalette::WindowText, 0xFF808080},
    {QPalette::Text, 0xFF808080},
    {QPalette::ButtonText, 0xFF808080},
    {QPalette::Base, 0xFFEBECF6},
};
}  // namespace

void PrepareLook() {
    QApplication::setStyle(new SizedStyle);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);  // the bar belongs to the window's picture
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setApplicationName("LuckyCup");
    QGuiApplication::setDesktopFileName("luckycup");
}

void ApplyLook() {
    QPalette palette;
    for (const RoleColour& entry : lightColours) palette.setColor(entry.role, QColor::fromRgba(entry.colour));
    for (const RoleColour& entry : disabledColours)
        palette.setColor(QPalette::Disabled, entry.role, QColor::fromRgba(entry.colour));
    QApplication::setPalette(palette);
    ApplyFonts();
}

void ApplyFonts() {
    // The menus keep the desktop's own font, which the next line would take from them.
    const QFont menuFont = QApplication::font("QMenu");
    QApplication::setFont(TableFont(false));
    for (const char* menu : {"QMenu", "QMenuBar"}) QApplication::setFont(menuFont, menu);
    QToolTip::setFont(TableFont(false));
}

void SetGameIcon(Art& art) {
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(art.Scaled("icon", {size, size}, 1));
    QApplication::setWindowIcon(icon);
}
