#pragma once

#include <QString>
#include <string>

#include "core/ports/top_scores.h"

// The files scores1.dat to scores4.dat in a folder, which must exist. A file is replaced in one step, so at any instant
// it holds the old or the new table, and programs that record at once wait for each other. One that cannot be opened
// for reading and writing is left alone, though its folder would let it be replaced. Beside a table only the file of
// its name and ".new" is made, and cleared away.
//
// Only a table that is missing from its folder is fileNotFound; other failures have the number of their own kind.
class TopScoreFiles final : public TopScores {
public:
    // folder: UTF-8, ending in the platform's separator.
    explicit TopScoreFiles(const std::string& folder) : folder_(folder) {}

    // Creates a missing file. In a file that something else made longer than twenty records the place can lie past 20.
    int Record(int number, const ScoreRecord& record) override;
    bool TopScoreFileExists(int number) override;
    ScoreTable LoadTopScores(int number) override;
    void DeleteTopScores(int number) override;

private:
    [[nodiscard]] QString PathOf(int number) const;

    std::string folder_;
};
