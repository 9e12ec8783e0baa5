#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "dialogs/window/qt_dialogs.h"
#include "kit/qt_timers.h"
#include "menus/menu_style.h"
#include "script/headless_ports.h"
#include "sound/background_music.h"
#include "table/table_parts.h"
#include "table/window/frm_lucky_cup.h"
#include "tests/readable.h"

struct PaintingClock final : SilentClock {  // paints where the real one waits
    EventLog& log;
    std::string today = "2026-01-01";
    explicit PaintingClock(EventLog& events) : log(events) {}
    void Wait(int ms) override;
    std::string ShortDate() override { return today; }
};

struct LoggingShell final : SilentShell {
    EventLog& log;
    explicit LoggingShell(EventLog& events) : log(events) {}
    void Open(const std::string& target) override { log.push_back("open " + target); }
    void ShowHelpContents() override { log.push_back("help"); }
};

enum class Ticks { ByThemselves, ByHand };

// The real window with its dialogs and timers, in a folder of its own, under the hands of a player.
struct WindowTable {
    explicit WindowTable(const GameSettings& settings = {}, Ticks ticks = Ticks::ByThemselves);
    ~WindowTable() { window.LetGo(); }

    // Controls by their names. i: the index of one in an array.
    QWidget& At(const QString& name, int i = -1) const;
    bool Shown(const QString& name, int i = -1) const { return !At(name, i).isHidden(); }
    std::string Text(const QString& name, int i = -1) const;
    QAction& Entry(const char* name) const { return *window.findChild<QAction*>(name); }

    // A point of the window where the mouse hits the control, its middle if possible; none where others cover it all.
    std::optional<QPoint> FreePoint(const QWidget& control) const;
    void Click(const QString& name, int i = -1);  // in the middle of one that is covered or hidden, whatever lies there
    void ClickEntry(const char* name);            // through the menu bar; nothing when it is hidden
    void Move(const QPoint& point);
    void MoveOnto(const QString& name, int i) { Move(At(name, i).mapTo(&window, QPoint(5, 5))); }
    void MoveAway() { Move({2, 100}); }
    void Key(QKeyCombination key);

    QTemporaryDir folder;
    EventLog log;
    EventGate gate;
    Art art;
    MenuStyle menuStyle{art};
    frmLuckyCup window{gate, art};
    QtTimers timers{gate};
    SilentTimers noTimers;
    PaintingClock clock{log};
    HeadlessRandom random;
    HeadlessEffects effects{log};
    HeadlessMedia media{log};
    QtDialogs dialogs{window, gate, art};
    HeadlessScores scores{log};
    LoggingShell shell{log};
    HeadlessStore store{log};
    TableParts parts;
    BackgroundMusic music;
    Game game;
    QHash<QString, QWidget*> named;
    // What the player does in a dialog that has come up; called once for each.
    std::function<void(QWidget&)> answer = [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Return); };

private:
    void AnswerDialog();

    QTimer answerer_;
};
