#pragma once

#include <QString>
#include <string>

// Folders that the program reads and writes, each ending in the separator.
struct ProgramFiles {
    std::string data;     // AppPath
    std::string plugIns;  // what is loaded while the game runs
    std::string scores;
};

// All in one folder, which ends in the separator.
ProgramFiles FilesInOneFolder(const std::string& folder);

// Where the files lie for a program in programFolder, given the user's own data folder.
//
// A program with its data beside it is whole in itself: nothing it needs or writes lies elsewhere. One that is
// installed into a system can't write there; its score files lie with the user, in a folder that is made here if need
// be. If that fails the folder is named all the same, and the game finds no scores there.
ProgramFiles FindProgramFiles(const QString& programFolder, const QString& userFolder);
