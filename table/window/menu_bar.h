#pragma once

#include <QMenuBar>

#include "table/window/tool_bar.h"

// The three menus of the main window. Every entry is an action with the entry's name.
class MenuBar final : public QMenuBar {
public:
    MenuBar(QWidget* parent, Art& art, const CommandRunner& runner);

    // The look of the bar and of its drop-downs.
    void SetStyle(QStyle& style);

    void SetUndoEnabled(bool on) { undo_->setEnabled(on); }
    void SetRedoEnabled(bool on) { redo_->setEnabled(on); }
    // Each choice has a line that is checked and does nothing, and one that switches it.
    void ShowChoice(MenuChoice choice, bool on);
    void EnableCheckedHintEntries(bool byRequest, bool allways);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QAction* Entry(const char* name) const { return findChild<QAction*>(name); }

    QAction* undo_;
    QAction* redo_;
};
