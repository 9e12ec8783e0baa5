#include "app/desktop_shell.h"

#include <QDesktopServices>
#include <QUrl>

#include "dialogs/window/help_window.h"

void DesktopShell::Open(const std::string& target) { QDesktopServices::openUrl(QUrl(QString::fromStdString(target))); }

void DesktopShell::ShowHelpContents() {
    if (!help_ || !help_->isVisible()) help_ = OpenHelp(programFolder_, scoresFolder_, art_);
    if (help_) BringToFront(*help_);
}
