#pragma once

#include <deque>
#include <functional>
#include <stdexcept>

#include "core/silent_ports.h"
#include "dialogs/options_form.h"
#include "script/event_log.h"

enum class HeadlessAnswer { Ok, Cancel, Finish, Undo };

// The next queued answer is none that the dialog knows. The event that opened the dialog is left where it stood.
struct AnswerDoesNotFit : std::logic_error {
    AnswerDoesNotFit() : std::logic_error("the answer does not fit the dialog") {}
};

using OptionsVisit = std::function<void(Game&, OptionsForm&)>;

// Modal windows that run their load and close at once. What asks something takes the next queued answer; with an empty
// queue that is Ok or Finish.
class HeadlessDialogs : public SilentDialogs {
public:
    explicit HeadlessDialogs(EventLog& log) : log_(log) {}

    std::deque<HeadlessAnswer> answers;
    OptionsVisit changeOptions;  // what the user does in frmOptions; empty: nothing

    Answer ShowMessage(const Message& message) override;
    void frmEndGame(Game& game) override;
    void frmTheWinerIs(Game& game) override;
    void frmScores2(Game& game) override;
    void frmOptions(Game& game) override;

private:
    bool Confirmed(HeadlessAnswer yes, HeadlessAnswer no);

    EventLog& log_;
};
