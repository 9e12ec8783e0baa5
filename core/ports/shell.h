#pragma once

#include <string>

class Shell {
public:
    virtual ~Shell() = default;
    virtual void Open(const std::string& target) = 0;  // a web page or a mailto address, in the desktop's own program
    virtual void ShowHelpContents() = 0;
    virtual void CloseHelp() = 0;
};
