#pragma once

#include <QMainWindow>

#include "core/game.h"
#include "kit/event_gate.h"
#include "table/window/board.h"
#include "table/window/counter_display.h"
#include "table/window/dice_tray.h"
#include "table/window/frame_lines.h"
#include "table/window/menu_bar.h"
#include "table/window/row_labels.h"
#include "table/window/status_bar_widget.h"
#include "table/window/table_area.h"

// The main window. It shows what it is told and hands what the user does to the game, through the gate. It holds no
// rule.
class frmLuckyCup final : public QMainWindow, public TableView {
public:
    frmLuckyCup(EventGate& gate, Art& art);
    ~frmLuckyCup() override;

    // The look of menu bar, drop-downs and toolbar, which it outlives. Without one they look like any other.
    void SetMenuStyle(QStyle& style);

    // Loads the window for the game that it shows from now on. Once, before it is shown.
    void Load(Game& game);
    void Leave();                      // for good, without a question; nothing when the player has left already
    void LetGo() { game_ = nullptr; }  // the game ends; nothing that happens to the window reaches it any more

    void SetRollPicture(RollPicture kind) override { tray_.SetRollPicture(kind); }
    void SetRollEnabled(bool on) override { tray_.SetRollEnabled(on); }
    void SetRollVisible(bool on) override { tray_.SetRollVisible(on); }
    void ShowDieFace(int i, int face) override { tray_.ShowFace(i, face); }
    void ShowRollingFace(int i, int k) override { tray_.ShowRollingFace(i, k + 1); }
    void ShowDieFree(int i) override { tray_.ShowFree(i); }
    void ShowDieHeld(int i) override { tray_.ShowHeld(i); }
    void HideDie(int i) override { tray_.Hide(i); }
    void EnableDie(int i, bool on) override { tray_.EnableDie(i, on); }
    void SetLamps(int n) override { tray_.SetLamps(n); }

    void ShowBoxButton(ScoreColumn column, int row, bool on) override { board_.Button(column, row).setVisible(on); }
    void EnableBoxButton(ScoreColumn column, int row, bool on) override { board_.Button(column, row).setEnabled(on); }
    void SetBoxPicture(int row, bool normal) override { board_.SetBoxPicture(row, normal); }
    void SetBoxText(ScoreColumn column, int row, const std::string& text) override;
    void SetTotalText(ScoreColumn column, TotalRow row, const std::string& text) override;

    void SetTipText(int row, const std::string& text) override;
    void ShowTipColumn(bool on) override;
    void HighlightRowLabel(int row) override { labels_.Highlight(row, true); }
    void ResetRowLabel(int row) override { labels_.Highlight(row, false); }

    void SetFrameHeight(int columns) override;
    void LayOut(int columns, int lastDieIndex) override;
    void SetTitle(std::string_view text) override;
    void SetWindowHeight(int twips) override;
    void MinimizeWindow() override { showMinimized(); }
    void SetPanelText(int k, std::string_view text) override;
    void SetPanelLayout(int k, int width, bool visible) override { statusBar_->SetPanelLayout(k, width, visible); }
    void SetStatusBarVisible(bool on) override { statusBar_->setVisible(on); }

    void SetUndoEnabled(bool on) override;
    void SetRedoEnabled(bool on) override;
    void SetHintButtonEnabled(bool on) override { toolBar_->SetHintEnabled(on); }
    void ShowChoice(MenuChoice choice, bool on) override;
    void EnableCheckedHintEntries(bool byRequest, bool allways) override;
    void ShowNextPlayer(bool on) override { tray_.ShowNextPlayer(on); }
    void ShowNextBoardButton(bool visible, bool enabled) override { tray_.ShowNextBoardButton(visible, enabled); }
    void SetShowBoardCaption(std::string_view caption) override;

    void CopyPicture(CounterPicture from, CounterPicture to) override;
    void DrawDigit(CounterPicture to, int digit, int x) override;
    void DrawMinus(CounterPicture to, int x) override;
    void EraseDigit(int x) override;
    void RefreshCounter() override { score_->Refresh(); }
    void BlankScoreCounter(CounterPicture picture) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Run(const std::function<void(Game&)>& handler);
    void Play(const std::function<void(Game&)>& handler);  // what a player does, and can't while a dialog stands open
    void ShowMark();
    void LeadReader(const TableState& table);
    void Hover(ScoreColumn column, int row, bool onButton);
    Board::Events BoardEvents();
    DiceTray::Events TrayEvents();
    CommandRunner Commands();
    bool Covered() const;  // by a modal window
    void AskToLeave();
    void PlaceOnScreen();
    void SetPointers();
    GlyphColumns& Counter(CounterPicture picture) { return counters_[picture]; }

    EventGate& gate_;
    Game* game_ = nullptr;
    Art& art_;
    ByCounterPicture<GlyphColumns> counters_;
    TableArea* table_;  // below the menu bar
    FrameLines lines_;
    RowLabels labels_;
    Board board_;
    DiceTray tray_;
    CounterDisplay* score_;
    ToolBar* toolBar_;
    MenuBar* menuBar_;
    StatusBarWidget* statusBar_;
    BoxMark mark_;
    std::optional<Box> shownMark_;
    ByDie<bool> toldHeld_{};
    int toldLamps_ = 0;
    QPointF mouse_;  // on the screen
    bool minimized_ = false;
    bool leaving_ = false;  // the player is being asked, or has left
};
