#pragma once

#include <QMainWindow>

#include "core/game.h"
#include "kit/event_gate.h"
#include "table/window/table_controls.h"

// The main window. It shows what it is told, once it is loaded, and hands what the user does to the game, through the
// gate. It holds no rule.
class frmLuckyCup final : public QMainWindow, public TableView {
public:
    frmLuckyCup(EventGate& gate, Art& art);
    ~frmLuckyCup() override;

    // The look of menu bar, drop-downs and toolbar, which it outlives, from when the window is loaded. Without one they
    // look like any other.
    void SetMenuStyle(QStyle& style) { menuStyle_ = &style; }

    // Loads the window for the game that it shows from now on. Once, before it is shown.
    void Load(Game& game);
    void Leave();                      // for good, without a question; nothing when the player has left already
    void LetGo() { game_ = nullptr; }  // the game ends; nothing that happens to the window reaches it any more

    void SetRollPicture(RollPicture kind) override { controls_->tray.SetRollPicture(kind); }
    void SetRollEnabled(bool on) override { controls_->tray.SetRollEnabled(on); }
    void SetRollVisible(bool on) override { controls_->tray.SetRollVisible(on); }
    void ShowDieFace(int i, int face) override { controls_->tray.ShowFace(i, face); }
    void ShowRollingFace(int i, int k) override { controls_->tray.ShowRollingFace(i, k + 1); }
    void ShowDieFree(int i) override { controls_->tray.ShowFree(i); }
    void ShowDieHeld(int i) override { controls_->tray.ShowHeld(i); }
    void HideDie(int i) override { controls_->tray.Hide(i); }
    void EnableDie(int i, bool on) override { controls_->tray.EnableDie(i, on); }
    void SetLamps(int n) override { controls_->tray.SetLamps(n); }

    void ShowBoxButton(ScoreColumn column, int row, bool on) override {
        controls_->board.Button(column, row).setVisible(on);
    }
    void EnableBoxButton(ScoreColumn column, int row, bool on) override {
        controls_->board.Button(column, row).setEnabled(on);
    }
    void SetBoxPicture(int row, bool normal) override { controls_->board.SetBoxPicture(row, normal); }
    void SetBoxText(ScoreColumn column, int row, const std::string& text) override;
    void SetTotalText(ScoreColumn column, TotalRow row, const std::string& text) override;

    void SetTipText(int row, const std::string& text) override;
    void ShowTipColumn(bool on) override;
    void HighlightRowLabel(int row) override { controls_->labels.Highlight(row, true); }
    void ResetRowLabel(int row) override { controls_->labels.Highlight(row, false); }

    void SetFrameHeight(int columns) override;
    void LayOut(int columns, int lastDieIndex) override;
    void SetTitle(std::string_view text) override;
    void SetWindowHeight(int twips) override;
    void MinimizeWindow() override { showMinimized(); }
    void SetPanelText(int k, std::string_view text) override;
    void SetPanelLayout(int k, int width, bool visible) override {
        controls_->statusBar->SetPanelLayout(k, width, visible);
    }
    void SetStatusBarVisible(bool on) override { controls_->statusBar->setVisible(on); }

    void SetUndoEnabled(bool on) override;
    void SetRedoEnabled(bool on) override;
    void SetHintButtonEnabled(bool on) override { controls_->toolBar->SetHintEnabled(on); }
    void ShowChoice(MenuChoice choice, bool on) override;
    void EnableCheckedHintEntries(bool byRequest, bool allways) override;
    void ShowNextPlayer(bool on) override { controls_->tray.ShowNextPlayer(on); }
    void ShowNextBoardButton(bool visible, bool enabled) override {
        controls_->tray.ShowNextBoardButton(visible, enabled);
    }
    void SetShowBoardCaption(std::string_view caption) override;

    void CopyPicture(CounterPicture from, CounterPicture to) override;
    void DrawDigit(CounterPicture to, int digit, int x) override;
    void DrawMinus(CounterPicture to, int x) override;
    void EraseDigit(int x) override;
    void RefreshCounter() override { controls_->score->Refresh(); }
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
    TableControls::Events Events();
    Board::Events BoardEvents();
    DiceTray::Events TrayEvents();
    bool Covered() const;  // by a modal window
    void AskToLeave();
    void PlaceOnScreen();
    void SetPointers();
    GlyphColumns& Counter(CounterPicture picture) { return counters_[picture]; }

    EventGate& gate_;
    Game* game_ = nullptr;
    Art& art_;
    ByCounterPicture<GlyphColumns> counters_;
    QStyle* menuStyle_ = nullptr;
    std::optional<TableControls> controls_;  // once loaded
    BoxMark mark_;
    std::optional<Box> shownMark_;
    ByDie<bool> toldHeld_{};
    int toldLamps_ = 0;
    QPointF mouse_;  // on the screen
    bool minimized_ = false;
    bool leaving_ = false;  // the player is being asked, or has left
};
