#pragma once

#include "core/ports/shell.h"

// The desktop's own browser and mail program. There is no help file yet.
class DesktopShell final : public Shell {
public:
    void Open(const std::string& target) override;
    void ShowHelpContents() override {}
    void CloseHelp() override {}
};
