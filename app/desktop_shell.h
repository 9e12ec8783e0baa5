#pragma once

#include <QWidget>
#include <memory>

#include "core/ports/shell.h"
#include "kit/art.h"

// The desktop's own browser and mail program, and the window of the help file.
class DesktopShell final : public Shell {
public:
    // The program's folder ends in the separator. The help tells that the score files lie in the other folder.
    DesktopShell(const std::string& programFolder, const std::string& scoresFolder, Art& art)
        : programFolder_(QString::fromStdString(programFolder)),
          scoresFolder_(QString::fromStdString(scoresFolder)),
          art_(art) {}

    void Open(const std::string& target) override;
    void ShowHelpContents() override;
    void CloseHelp() override { help_.reset(); }

private:
    QString programFolder_, scoresFolder_;
    Art& art_;
    std::unique_ptr<QWidget> help_;
};
