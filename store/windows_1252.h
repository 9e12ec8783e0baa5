#pragma once

#include <QByteArray>
#include <string>

// One byte for each character; '?' for what the character set lacks. The text is UTF-8.
QByteArray ToWindows1252(const std::string& text);

// Every byte stands for a character, so a text that went to bytes and back has lost nothing but its '?'.
std::string FromWindows1252(const QByteArray& bytes);
