#pragma once

#include <QAccessible>
#include <QWidget>

// What a screen reader is told of the controls that the game draws itself. Pictures and frames without a name are
// decoration and do not show there.

void MakeControlsSpeak();  // after the application object is made, before the first of them is

// Each tells the screen reader what is new, and nothing when nothing is.
void Say(QWidget& control, const QString& name);
void SayChecked(QWidget& control, bool checked);  // from now on it can be checked
void SayFocus(QWidget& control);                  // although the keyboard stays with the window

void SetRole(QWidget& control, QAccessible::Role role);
