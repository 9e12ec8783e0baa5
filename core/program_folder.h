#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

// Paths are UTF-8 with the platform's own separator.
inline constexpr char pathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

// The folder, ending in the separator.
inline std::string AsFolder(std::string folder) {
    if (!folder.ends_with(pathSeparator)) folder += pathSeparator;
    return folder;
}

// The file of that name, below the folders that stand before it, in a folder that ends in the separator.
inline std::string ProgramFile(const std::string& folder, std::initializer_list<std::string_view> names) {
    std::string path = folder;
    for (std::string_view name : names) (path += name) += pathSeparator;
    path.pop_back();
    return path;
}

// The folder of the score files, ending in the separator, in a program's folder.
inline std::string ScoresFolder(const std::string& programFolder) {
    return AsFolder(ProgramFile(programFolder, {"scores"}));
}
