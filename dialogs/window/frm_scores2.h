#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>

#include "dialogs/window/dialog_window.h"
#include "dialogs/window/score_list_model.h"

// The hall of fame: shows a ScoresForm and passes on what the user does. Opening it after a game plays the jingle.
class frmScores2 final : public DialogWindow {
public:
    frmScores2(QWidget& owner, Game& game, Art& art);

    void done(int result) override;  // of every way out

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;  // of the tab strip

private:
    void MakeTabs();
    void MakeList();
    void MakeResult();
    void LayOut();
    void FitToSize();
    void FitTabs();
    void FitResult();
    void FitList();
    void Connect();
    void AddTabShortcut(QKeySequence::StandardKey key, int step);
    void StepTab(int step);
    void ShowTable();

    Game& game_;
    ScoresForm form_;
    ScoreListModel model_;
    QTabWidget* SSTab1_;
    QTableView* LVScores_;
    QLabel* lblScore_;
    QPushButton *cmdClearTable_, *cmdReturn_;
    QCheckBox* Check1_;
};
