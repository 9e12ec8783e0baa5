#include "app/desktop_shell.h"

#include <QDesktopServices>
#include <QUrl>

void DesktopShell::Open(const std::string& target) { QDesktopServices::openUrl(QUrl(QString::fromStdString(target))); }
