#pragma once

#include <string>

#include "core/ports/shell.h"

// Where the project is found. Both are reserved names until it has its own.
inline constexpr const char* webSite = "https://luckycup.example";
inline constexpr const char* contactAddress = "luckycup@luckycup.example";

inline std::string MailTarget() { return std::string("mailto:") + contactAddress; }

inline void OpenWebSite(Shell& shell) { shell.Open(webSite); }
inline void OpenMailClient(Shell& shell) { shell.Open(MailTarget()); }
