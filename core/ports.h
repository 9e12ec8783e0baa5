#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/game_settings.h"
#include "core/table_state.h"

struct Game;

// What the core needs of the rest of the program. The core calls; app, script and tests supply.

class Timers {
public:
    virtual ~Timers() = default;
    // Starts the timer, or gives a running one a new interval in ms, counted from now.
    virtual void Start(Timer timer, int interval) = 0;
    virtual void Stop(Timer timer) = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual void Wait(int ms) = 0;        // blocks the game, not the paint
    virtual double TimeOfDay() = 0;       // fraction of the day, 0 <= t < 1
    virtual std::string ShortDate() = 0;  // today, as the system writes a short date
};

class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual void Reseed(double timeOfDay) = 0;
    virtual double Next() = 0;  // uniform, 0 <= r < 1
    virtual int DrawDie() { return static_cast<int>(Next() * facesOfADie) + 1; }
};

class SoundEffects {
public:
    virtual ~SoundEffects() = default;
    virtual void PlayEffect(std::string_view name) = 0;      // returns at once
    virtual void PlayEffectWait(std::string_view name) = 0;  // returns when the sound has ended
};

class MediaService {
public:
    virtual ~MediaService() = default;
    // Carries out one command. Answers a status query with its text and everything else, failures included, with "".
    virtual std::string Send(const std::string& command) = 0;
};

enum class MessageIcon { Question, Warning, Stop, Information };
enum class MessageButtons { Ok, OkCancel };
enum class Answer { Ok = 1, Cancel = 2 };

struct Message {
    std::string title;
    std::string text;
    MessageIcon icon;
    MessageButtons buttons;
};

// Modal: each call returns when its window has closed. What a window decides it writes into the records.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer ShowMessage(const Message& message) = 0;
    virtual void frmEndGame(Game& game) = 0;
    virtual void frmTheWinerIs(Game& game) = 0;
    virtual void frmScores2(Game& game) = 0;
    virtual void frmOptions(Game& game) = 0;
    virtual void frmQuickStart(Game& game) = 0;  // does not block
    virtual void frmAbout(Game& game) = 0;
};

inline constexpr int fileNotFound = 53;

// A top-score file could not be used. code is the trap's error number, of which only fileNotFound is shown.
struct ScoreFileError : std::runtime_error {
    ScoreFileError(int number, const std::string& description, std::string file)
        : std::runtime_error(description), code(number), path(std::move(file)) {}
    int code;
    std::string path;
};

inline constexpr int unusedScore = -9999;
inline constexpr int scoreRecords = 20;

// One place of a top-score table; texts are UTF-8. An unused slot has unusedScore and empty texts.
struct ScoreRecord {
    std::string PlayerName;
    int Score = unusedScore;
    std::string GameDate;

    bool operator==(const ScoreRecord&) const = default;
};

// The four top-score files, numbered 1 to 4. Everything but TopScoreFileExists may throw ScoreFileError, which leaves
// the file as it was.
class TopScores {
public:
    virtual ~TopScores() = default;
    // Puts the record below all scores that are not lower. Returns its place, from 1, or -1 when it did not get in.
    // The table has places 1 to 20; only a file that something else made longer has more.
    virtual int Record(int number, const ScoreRecord& record) = 0;
    virtual bool TopScoreFileExists(int number) = 0;
    virtual std::array<ScoreRecord, scoreRecords> LoadTopScores(int number) = 0;
    virtual void DeleteTopScores(int number) = 0;
};

class Shell {
public:
    virtual ~Shell() = default;
    virtual void Open(const std::string& target) = 0;  // a web page or a mailto address, in the desktop's own program
    virtual void ShowHelpContents() = 0;
    virtual void CloseHelp() = 0;
};

class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual GameSettings LoadSettings() = 0;
    virtual void SaveSettings(const GameSettings& settings) = 0;
};

// The parts of the table that move or are laid out, which stand above the core.
class MovingParts {
public:
    virtual ~MovingParts() = default;
    virtual void ScoreCounter(Game& game) = 0;  // shows Total, counting up where it can
    virtual void ResetScoreCounter() = 0;
    virtual int StartTableAnimation(Game& game) = 0;  // returns the pattern drawn: 1 to 9, with one column 1 to 4
    virtual void SetControls(Game& game) = 0;
    virtual void SetStatusBar(Game& game) = 0;
    virtual void ShowCurrentPlayer(Game& game, int choice) = 0;  // 2: Player2, 3: Player1, else nothing
    virtual void ResetGameOverMessage() = 0;
};
