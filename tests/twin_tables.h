#pragma once

#include "script/events.h"
#include "tests/window_table.h"

// One table script played twice: on the table without a window, and by mouse and keys in the real window. After every
// event all that can be seen in the window is held against what the other table tells.
class TwinTables {
public:
    enum class Hands { Both, Keys, Mouse };

    explicit TwinTables(Hands hands = Hands::Both);

    void Line(const std::string& text);  // of the script; what differs then fails the test
    bool Alike() const { return alike_; }

    ScriptTable script;
    std::unique_ptr<WindowTable> window;  // from the start on

private:
    void Start();
    void HandOverQueues();
    void PlayBesides(const char* event, const ScriptLine& line);
    void PlayInWindow(const ScriptLine& line);
    void Settle();
    void Press(QAbstractButton& button);
    void AnswerDialog(QWidget& modal);
    void ChangeOptions(QWidget& dialog);
    bool NextAnswerIs(HeadlessAnswer yes);
    void Compare(const std::string& event);

    Hands hands_;
    QTemporaryDir folder_;
    std::deque<HeadlessAnswer> answers_;  // for the window
    std::vector<std::string> optionPairs_;
    std::string hovered_;  // column and row of the button under the mouse
    int events_ = 0;       // takes turns between the ways that lead to a command
    bool alike_ = true;
};

// What can be seen in the window, with the names that a script's output has. Sizes are pixels.
QJsonObject Seen(const WindowTable& table);
