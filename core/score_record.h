#pragma once

#include <stdexcept>
#include <string>
#include <utility>

inline constexpr int unusedScore = -9999;
inline constexpr int scoreRecords = 20;

// One place of a top-score table; texts are UTF-8. An unused slot has unusedScore and empty texts.
struct ScoreRecord {
    std::string PlayerName;
    int Score = unusedScore;
    std::string GameDate;

    bool operator==(const ScoreRecord&) const = default;
};

inline constexpr int fileNotFound = 53;

// A top-score file could not be used. code is the trap's error number, of which only fileNotFound is shown.
struct ScoreFileError : std::runtime_error {
    ScoreFileError(int number, const std::string& description, std::string file)
        : std::runtime_error(description), code(number), path(std::move(file)) {}
    int code;
    std::string path;
};
