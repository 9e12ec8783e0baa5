#pragma once

#include <QFile>

inline constexpr auto ownersOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
inline constexpr auto everyones =
    ownersOnly | QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;

// Puts the bytes into the file at the path, or into the one that a link there leads to, in one step: at any instant,
// whatever fails or is killed, the file holds all of the old or all of the new bytes. They are written and flushed
// beside it, in a file of its name and ".new" that is made anew; what lay there under that name is removed, never
// written through. An old file hands on its permissions; a new one has those given, less what the process's mask takes
// away. NoError when it is done, RenameError when only the last step failed.
QFileDevice::FileError ReplaceFile(const QString& path, const QByteArray& bytes, QFileDevice::Permissions ofNew);
