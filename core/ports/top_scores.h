#pragma once

#include <array>

#include "core/score_record.h"

using ScoreTable = std::array<ScoreRecord, scoreRecords>;  // the best first

// The four top-score files, numbered 1 to 4. Everything but TopScoreFileExists may throw ScoreFileError, which leaves
// the file as it was.
class TopScores {
public:
    virtual ~TopScores() = default;
    // Puts the record below all scores that are not lower. Returns its place, from 1, or -1 when it did not get in.
    // The table has places 1 to 20; only a file that something else made longer has more.
    virtual int Record(int number, const ScoreRecord& record) = 0;
    virtual bool TopScoreFileExists(int number) = 0;
    virtual ScoreTable LoadTopScores(int number) = 0;
    virtual void DeleteTopScores(int number) = 0;
};
