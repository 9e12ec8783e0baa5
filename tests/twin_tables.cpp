#include "tests/twin_tables.h"

#include <QJsonArray>
#include <QLineEdit>
#include <QMessageBox>
#include <QSlider>

#include "app/tick.h"
#include "script/json_line.h"
#include "script/set_up.h"
#include "store/top_score_files.h"
#include "table/presses.h"
#include "table/row_names.h"
#include "table/window/counter_display.h"
#include "tests/mark_ways.h"
#include "tests/state_differences.h"
#include "tests/visits.h"

namespace {

using T = WindowTable&;
using Line = const ScriptLine&;

int Number(Line line, std::size_t value) { return std::stoi(std::string(line.Value(value))); }
QString BoxButtonName(Line line) { return QString("cmd") + ColumnName(static_cast<ScoreColumn>(Number(line, 1))); }

// A way to do what a line of the script stands for. Those of one command take turns.
struct Way {
    std::string_view command;
    void (*go)(T, Line);
    bool byKey = false;
};

// What is hidden can't be aimed at.
void Click(T t, const QString& name, int i = -1) {
    if (t.Shown(name, i)) t.Click(name, i);
}

// Through the menu or with the key of the toolbar, which switches whatever is on; neither when it is chosen already.
void Choose(T t, const char* entry, const char* key = nullptr) {
    if (!key) t.ClickEntry(entry);
    if (key && t.Entry(entry).isVisible()) t.Click(key);
}

// Leads the mark to the box and presses it.
void PressWithMark(T t, Line line) {
    const Box wanted{static_cast<ScoreColumn>(Number(line, 1)), Number(line, 2)};
    const auto marked = [&](const Box& box) {
        return dynamic_cast<PictureButton&>(t.At(QString("cmd") + ColumnName(box.column), box.row)).Marked();
    };
    constexpr std::array arrows{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
    if (BoxOpen(t.game, wanted.column, wanted.row)) t.Key(Qt::Key_Left);
    for (const auto& [box, way] : WaysTo(t.game, wanted))
        if (marked(box))
            for (Direction step : way) t.Key(arrows[static_cast<std::size_t>(step)]);
    t.Key(Qt::CTRL | Qt::Key_Return);
    t.Key(Qt::Key_Escape);
}

const Way ways[] = {
    {"roll", [](T t, Line) { Click(t, "picRollDices"); }},
    {"key enter", [](T t, Line) { t.Key(Qt::Key_Return); }, true},
    {"key enter", [](T t, Line) { t.Key(Qt::KeypadModifier | Qt::Key_Enter); }, true},
    {"key space", [](T t, Line) { t.Key(Qt::Key_Space); }},
    {"die",
     [](T t, Line line) { Click(t, t.Shown("picDice", Number(line, 1)) ? "picDice" : "PicDiceOff", Number(line, 1)); }},
    {"die", [](T t, Line line) { t.Key(static_cast<Qt::Key>(Qt::Key_1 + Number(line, 1))); }, true},
    {"die", [](T t, Line line) { t.Key(Qt::KeypadModifier | Qt::Key(Qt::Key_1 + Number(line, 1))); }, true},
    {"box", [](T t, Line line) { Click(t, BoxButtonName(line), Number(line, 2)); }},
    {"box", PressWithMark, true},
    {"hover", [](T t, Line line) { t.MoveOnto(BoxButtonName(line), Number(line, 2)); }},
    {"leave", [](T t, Line) { t.MoveAway(); }},
    {"next", [](T t, Line) { Click(t, "cmdNextPlayer"); }},
    {"next", [](T t, Line) { t.Key(Qt::Key_N); }, true},
    {"board", [](T t, Line) { t.Key(Qt::Key_B); }, true},
    {"board", [](T t, Line) { Click(t, "cmdShowNextBoard"); }},
    {"undo", [](T t, Line) { t.ClickEntry("mnuUndoUndo"); }},
    {"undo", [](T t, Line) { Click(t, "tbUndo"); }},
    {"undo", [](T t, Line) { t.Key(Qt::CTRL | Qt::Key_Z); }, true},
    {"redo", [](T t, Line) { t.Key(Qt::CTRL | Qt::Key_Y); }, true},
    {"redo", [](T t, Line) { t.Key(Qt::CTRL | Qt::SHIFT | Qt::Key_Z); }, true},
    {"redo", [](T t, Line) { Click(t, "tbRedo"); }},
    {"redo", [](T t, Line) { t.ClickEntry("mnuUndoRedo"); }},
    {"new", [](T t, Line) { t.Key(Qt::Key_F2); }},
    {"new", [](T t, Line) { Click(t, "tbNew"); }},
    {"new", [](T t, Line) { t.ClickEntry("mnuNewGame"); }},
    {"hint", [](T t, Line) { t.Key(Qt::Key_H); }, true},
    {"hint", [](T t, Line) { Click(t, "tbHint"); }},
    {"hints always", [](T t, Line) { t.ClickEntry("mnuHintsAllways2"); }},
    {"hints request", [](T t, Line) { t.ClickEntry("mnuHintsByRequest2"); }},
    {"sounds on", [](T t, Line) { Choose(t, "mnuSoundsOn2"); }},
    {"sounds on", [](T t, Line) { Choose(t, "mnuSoundsOn2", "tbSound"); }},
    {"sounds off", [](T t, Line) { Choose(t, "mnuSoundsOff2"); }},
    {"sounds off", [](T t, Line) { Choose(t, "mnuSoundsOff2", "tbSound"); }},
    {"music on", [](T t, Line) { Choose(t, "mnuMusicOn2"); }},
    {"music on", [](T t, Line) { Choose(t, "mnuMusicOn2", "tbBGmusic"); }},
    {"music off", [](T t, Line) { Choose(t, "mnuMusicOff2"); }},
    {"music off", [](T t, Line) { Choose(t, "mnuMusicOff2", "tbBGmusic"); }},
    {"options", [](T t, Line) { t.ClickEntry("mnuOptions"); }},
    {"options", [](T t, Line) { t.Key(Qt::CTRL | Qt::Key_O); }},
    {"minimize", [](T t, Line) { t.window.showMinimized(); }},
    {"restore", [](T t, Line) { t.window.showNormal(); }},
    {"quit", [](T t, Line) { t.window.close(); }},
    {"quit", [](T t, Line) { Click(t, "tbExit"); }},
    {"quit", [](T t, Line) { t.Key(Qt::CTRL | Qt::Key_X); }},
    {"quit", [](T t, Line) { t.ClickEntry("mnuGameExit"); }},
    {"tick",
     [](T t, Line line) {
         const auto timer = static_cast<Timer>(std::ranges::find(timerNames, line.Value(1)) - timerNames.begin());
         const TimerState& state = t.game.table.timers[timer];
         for (int n = line.Values() == 2 ? Number(line, 2) : 1; n > 0 && state.enabled; --n)
             t.gate.Run([&] { Tick(t.game, t.parts, t.music, timer); });
     }},
    {"state", [](T, Line) {}},
};

std::string Joined(const EventLog& log) {
    std::string text;
    for (const std::string& entry : log)
        if (!entry.starts_with("refresh") && entry != "minimize") text += entry + '\n';
    return text;
}

std::string Compact(const QJsonValue& value) {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
}

std::string IconOf(const QMessageBox& box, Art& art) {
    const QPixmap shown = box.iconPixmap();
    for (const char* icon : {"question", "warning", "stop", "information"})
        if (shown.toImage() == art.Scaled(QString("message_") + icon, {32, 32}, shown.devicePixelRatio()).toImage())
            return icon;
    return "none";
}

// What stands for a setting in frmOptions; with a value, the button that chooses it.
struct OptionsControl {
    std::string_view setting, value;
    const char* name;
};

constexpr OptionsControl optionsControls[] = {
    {"NumberOfColumns", "1", "optYahtzee"},
    {"NumberOfColumns", "4", "optYamb"},
    {"NumberOfDice", "4", "opt5Dice"},
    {"NumberOfDice", "5", "opt6Dice"},
    {"NumberOfPlayers", "1", "opt1Player"},
    {"NumberOfPlayers", "2", "opt2Players"},
    {"ShowStatusBar", "", "chkShowStatusBar"},
    {"ConfirmQuitGame", "", "chkQuitGame"},
    {"ConfirmOnExit", "", "chkConfirmExit"},
    {"Player1", "", "txtName1"},
    {"Player2", "", "txtName2"},
    {"BGMusicVolume", "", "sldVolume"},
};

}  // namespace

TwinTables::TwinTables(Hands hands) : hands_(hands) {
    script.table.scores.Keep(std::make_unique<TopScoreFiles>(folder_.path().toStdString() + '/'));
}

void TwinTables::Line(const std::string& text) {
    const ScriptLine line(text);
    if (line.Empty()) return;
    if (RunSetUp(script, line)) return HandOverQueues();
    script.table.log.clear();
    if (line.Command() == "start") {
        Start();
    } else {
        window->log.clear();
        const bool mouseStays = line.Command() == "hover" || line.Command() == "leave";
        if (!mouseStays && !hovered_.empty()) Line("leave " + std::exchange(hovered_, ""));
        if (line.Command() == "roll" && script.table.game.table.roll.enabled &&
            !window->FreePoint(window->At("picRollDices")))
            return;  // the mouse can't reach it under the button of the other board
        script.table.log.clear();
        window->log.clear();
        if (line.Command() == "box") PlayBesides("hover", line);
        RunEvent(script, line);
        PlayInWindow(line);
        if (line.Command() == "box") PlayBesides("leave", line);
    }
    Compare(text);
}

// The mouse that clicks a box comes onto its button and leaves it.
void TwinTables::PlayBesides(const char* event, const ScriptLine& line) {
    RunEvent(script, ScriptLine(event + std::string(line.text.substr(line.Command().size()))));
}

void TwinTables::Start() {
    window = std::make_unique<WindowTable>(script.table.game.settings, Ticks::ByHand);
    window->game.session.AppPath = script.table.game.session.AppPath;
    window->answer = [this](QWidget& modal) { AnswerDialog(modal); };
    HandOverQueues();
    RunEvent(script, ScriptLine("start"));
}

void TwinTables::HandOverQueues() {
    if (!window) return;
    window->clock.today = script.table.clock.today;
    window->random = script.table.random;
    window->media.answers = script.table.media.answers;
    answers_ = script.table.dialogs.answers;
}

void TwinTables::PlayInWindow(const ScriptLine& line) {
    optionPairs_.assign(line.words.begin() + 1, line.words.end());
    std::vector<const Way*> open;
    for (const Way& way : ways)
        if (way.command == line.Command() || way.command == line.text) open.push_back(&way);
    ASSERT_FALSE(open.empty()) << line.text;
    if (hands_ != Hands::Both && open.size() > 1)
        std::erase_if(open, [this](const Way* way) { return way->byKey != (hands_ == Hands::Keys); });
    open[static_cast<std::size_t>(events_++) % open.size()]->go(*window, line);
    if (line.Command() == "hover")
        hovered_ = line.RestFrom(1);
    else if (line.Command() != "leave")
        window->MoveAway();
    Settle();
}

// Lets what waits at the gate run.
void TwinTables::Settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

bool TwinTables::NextAnswerIs(HeadlessAnswer yes) {
    if (answers_.empty()) return true;
    const HeadlessAnswer answer = answers_.front();
    answers_.pop_front();
    return answer == yes;
}

// A key presses the default button alone.
void TwinTables::Press(QAbstractButton& button) {
    if (hands_ == Hands::Keys)
        QTest::keyClick(button.window(), Qt::Key_Return);
    else
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(10, button.height() / 2));
}

void TwinTables::AnswerDialog(QWidget& modal) {
    const std::string name = modal.objectName().toStdString();
    if (auto* box = dynamic_cast<QMessageBox*>(&modal)) {
        const bool ok = !box->button(QMessageBox::Cancel) || NextAnswerIs(HeadlessAnswer::Ok);
        window->log.push_back("message " + box->windowTitle().toStdString() + '|' + box->text().toStdString() + '|' +
                              IconOf(*box, window->art) + (ok ? "|ok" : "|cancel"));
        return Press(*box->button(ok ? QMessageBox::Ok : QMessageBox::Cancel));
    }
    if (name == "frmEndGame") {
        const bool finish = NextAnswerIs(HeadlessAnswer::Finish);
        Press(*modal.findChild<QAbstractButton*>(finish ? "cmdFinish" : "cmdUndo"));
        window->log.push_back(finish ? "dialog frmEndGame|finish" : "dialog frmEndGame|undo");
    } else if (name == "frmOptions") {
        ChangeOptions(modal);
        const bool ok = NextAnswerIs(HeadlessAnswer::Ok);
        Act(modal, ok ? "@HoverCommand1" : "@HoverCommand2");
        window->log.push_back(ok ? "dialog frmOptions|ok" : "dialog frmOptions|cancel");
    } else {
        Press(*modal.findChild<QAbstractButton*>(name == "frmTheWinerIs" ? "cmdClose" : "cmdReturn"));
        window->log.push_back("dialog " + name);
    }
}

void TwinTables::ChangeOptions(QWidget& dialog) {
    for (const std::string& pair : optionPairs_) {
        const auto equals = pair.find('=');
        const std::string setting = pair.substr(0, equals), value = pair.substr(equals + 1);
        const auto* control = std::ranges::find_if(optionsControls, [&](const OptionsControl& candidate) {
            return candidate.setting == setting && (candidate.value.empty() || candidate.value == value);
        });
        auto* widget = dialog.findChild<QWidget*>(control->name);
        if (auto* field = dynamic_cast<QLineEdit*>(widget)) {
            field->selectAll();
            if (field->isEnabled()) field->insert(QString::fromStdString(value));
        } else if (auto* slider = dynamic_cast<QSlider*>(widget)) {
            slider->setValue(std::stoi(value));
        } else if (!control->value.empty() ||
                   dynamic_cast<QAbstractButton*>(widget)->isChecked() != (value == "True")) {
            Act(dialog, QString("@") + control->name);
        }
    }
}

void TwinTables::Compare(const std::string& event) {
    const HeadlessTable& table = script.table;
    QJsonObject told = QJsonDocument::fromJson(QByteArray::fromStdString(JsonLine(event, false, table))).object();
    const GlyphColumns& picture = table.view.Picture(CounterPicture::picScore);
    told["height"] = Pixels(table.game.table.height - frameAndMenuHeight);
    told["closed"] = script.closed;
    const bool minimized = event == "minimize" || std::ranges::count(table.log, "minimize") > 0;
    told["minimized"] = minimized;
    const QJsonObject seen = Seen(*window);
    const std::string differences = Differences(seen, told);
    const QString first = QString::fromStdString(differences.substr(0, differences.find_first_of(". ")));
    EXPECT_EQ(differences, "") << "seen " << Compact(seen[first]) << ", told " << Compact(told[first]);
    CounterDisplay display(window->window.centralWidget(), window->art, picture);
    display.resize(window->At("picScore").size());
    const bool samePicture = display.grab().toImage() == window->At("picScore").grab().toImage();
    EXPECT_TRUE(samePicture) << "the counter does not show " << CounterText(picture);
    EXPECT_EQ(Joined(window->log), Joined(table.log));
    EXPECT_EQ(window->game.settings, table.game.settings);
    const bool sameQueues = window->random.state == table.random.state && answers_ == table.dialogs.answers &&
                            window->random.faces == table.random.faces && window->media.answers == table.media.answers;
    EXPECT_TRUE(sameQueues) << "not as many random numbers, answers or faces were taken";
    alike_ = !testing::Test::HasFailure();
}
