#pragma once

#include <cstdint>
#include <deque>
#include <memory>

#include "core/silent_ports.h"
#include "script/event_log.h"

// The ports of a table without a window. Each writes what it was asked for into the log.

class HeadlessClock final : public SilentClock {
public:
    explicit HeadlessClock(EventLog& log) : log_(log) {}

    void Wait(int ms) override;
    std::string ShortDate() override { return today; }

    std::string today = "2026-01-01";

private:
    EventLog& log_;
};

// A linear congruential generator that no re-seeding disturbs, so that a run repeats.
class HeadlessRandom final : public RandomSource {
public:
    void Reseed(double) override {}
    double Next() override;
    int DrawDie() override;  // the next of the queued faces, as long as there is one

    std::uint64_t state = 1;
    std::deque<int> faces;  // 1 to 6
};

class HeadlessEffects final : public SoundEffects {
public:
    explicit HeadlessEffects(EventLog& log) : log_(log) {}

    void PlayEffect(std::string_view name) override;
    void PlayEffectWait(std::string_view name) override;

private:
    EventLog& log_;
};

class HeadlessMedia final : public MediaService {
public:
    explicit HeadlessMedia(EventLog& log) : log_(log) {}

    std::string Send(const std::string& command) override;

    std::deque<std::string> answers;  // for the next status queries; empty: no number

private:
    EventLog& log_;
};

// The scores of another keeper, with every attempt to place one in the log.
class HeadlessScores final : public TopScores {
public:
    explicit HeadlessScores(EventLog& log) : log_(log) {}

    void Keep(std::unique_ptr<TopScores> scores) { scores_ = std::move(scores); }

    int Record(int number, const ScoreRecord& record) override;
    bool TopScoreFileExists(int number) override { return scores_->TopScoreFileExists(number); }
    ScoreTable LoadTopScores(int number) override { return scores_->LoadTopScores(number); }
    void DeleteTopScores(int number) override { scores_->DeleteTopScores(number); }

private:
    EventLog& log_;
    std::unique_ptr<TopScores> scores_;
};

class HeadlessStore final : public SettingsStore {
public:
    explicit HeadlessStore(EventLog& log) : log_(log) {}

    GameSettings LoadSettings() override { return saved_; }
    void SaveSettings(const GameSettings& settings) override;

private:
    EventLog& log_;
    GameSettings saved_;
};
