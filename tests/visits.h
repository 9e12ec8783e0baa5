#pragma once

#include <QAbstractButton>
#include <QDeadlineTimer>
#include <QHash>
#include <QPointer>

#include "tests/window_table.h"

// The lines of a file of cases but for comments and empty ones; of its section [name] alone when one is named.
QStringList CasesOf(const char* file, const QString& section = {});

template <typename T = QAbstractButton>
T& In(QWidget& window, const QString& name) {
    T* found = window.findChild<T*>(name);
    if (!found) throw std::out_of_range(name.toStdString());
    return *found;
}

// What a player does to a window: a click on a control ("@cmdPlay") or on an entry of a tree ("@contents/Hints"), what
// is typed ("'word"), a key ("Alt+P") or the close box ("close").
void Act(QWidget& window, const QString& act);
void ClickAt(QWidget& control, const QPoint& point);

// Holds a window against its section of windows.txt.
void ExpectPlan(QWidget& window, const QString& section);

// The window of that name which is open, or null.
QWidget* Shown(const char* name);

// The real windows around the real table, under the hands of a player who does one thing after the other, whichever
// window stands in front.
struct Visits : WindowTable {
    explicit Visits(const GameSettings& settings = {});
    // Acts on the window in front, or of these others; behind " | " stands what an act has to come to, in time.
    void Play(const QStringList& acts, const QHash<QString, std::function<void()>>& others);
    std::string Log();  // since the last call, without pauses

    // What is to be told of the window in front besides its name and the control that has the keyboard.
    std::function<QString(const QWidget&)> describe;

private:
    void Poll();
    void Step();
    QWidget& InFront() const;
    QString Front() const;

    QStringList acts_;  // what is left of it
    QHash<QString, std::function<void()>> others_;
    QString line_, wanted_;  // the last one, and what it still has to come to
    QString heard_;          // since
    QDeadlineTimer patience_;
    QList<QWidget*> running_;  // the modal windows, or null for none, in which acts run
    QPointer<QWidget> last_;   // in front without being modal, to which a window manager comes back
};
