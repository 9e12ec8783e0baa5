#pragma once

#include <string>
#include <string_view>

#include "core/scorecard.h"
#include "core/table_state.h"

// The counter's pictures, each of 160 x 22 pixels. picScore is the one on screen, picScoreB the blank display.
enum class CounterPicture { picScore, picScoreB, picBuffer0, picBuffer1, picBuffer2, picPlayer1Score, picPlayer2Score };

template <typename T>
using ByCounterPicture = Indexed<T, 7, CounterPicture>;

// The three choices that the menu shows as pairs of entries, of which the checked one does nothing.
enum class MenuChoice { Hints, Sounds, Music };

// What the game tells the window. Every operation acts at once and none of them answers: whoever wants to know what is
// shown reads the records. Rows are 0 to 12, dice 0 to 5, faces 1 to 6, panels 1 to 5, texts UTF-8, sizes twips;
// x positions are pixels of a counter picture.
class TableView {
public:
    virtual ~TableView() = default;

    // Roll button, dice and lamps.
    virtual void SetRollPicture(RollPicture kind) = 0;
    virtual void SetRollEnabled(bool on) = 0;
    virtual void SetRollVisible(bool on) = 0;
    virtual void ShowDieFace(int i, int face) = 0;
    virtual void ShowRollingFace(int i, int k) = 0;  // the free picture alone; k is the face less 1, 0 to 5
    virtual void ShowDieFree(int i) = 0;
    virtual void ShowDieHeld(int i) = 0;
    virtual void HideDie(int i) = 0;
    virtual void EnableDie(int i, bool on) = 0;
    virtual void SetLamps(int n) = 0;  // lamps 0 to n-1 are lit

    // The board.
    virtual void ShowBoxButton(ScoreColumn column, int row, bool on) = 0;
    virtual void EnableBoxButton(ScoreColumn column, int row, bool on) = 0;
    virtual void SetBoxPicture(int row, bool normal) = 0;  // one-column game only; not normal: under the mouse
    virtual void SetBoxText(ScoreColumn column, int row, const std::string& text) = 0;
    virtual void SetTotalText(ScoreColumn column, TotalRow row, const std::string& text) = 0;

    // Tips and row labels.
    virtual void SetTipText(int row, const std::string& text) = 0;
    virtual void ShowTipColumn(bool on) = 0;
    virtual void HighlightRowLabel(int row) = 0;
    virtual void ResetRowLabel(int row) = 0;

    // Window, layout and status bar.
    virtual void SetFrameHeight(int columns) = 0;            // panel and frame lines for 1 or 4 columns
    virtual void LayOut(int columns, int lastDieIndex) = 0;  // places of everything that moves with the variant
    virtual void SetTitle(std::string_view text) = 0;
    virtual void SetWindowHeight(int twips) = 0;  // of the whole frame
    virtual void MinimizeWindow() = 0;
    virtual void SetPanelText(int k, std::string_view text) = 0;
    virtual void SetPanelLayout(int k, int width, bool visible) = 0;
    virtual void SetStatusBarVisible(bool on) = 0;

    // Commands and the two-player buttons.
    virtual void SetUndoEnabled(bool on) = 0;
    virtual void SetRedoEnabled(bool on) = 0;
    virtual void SetHintButtonEnabled(bool on) = 0;
    virtual void ShowChoice(MenuChoice choice, bool on) = 0;  // menu pair and toolbar picture of one choice
    virtual void EnableCheckedHintEntries(bool byRequest, bool allways) = 0;
    virtual void ShowNextPlayer(bool on) = 0;
    virtual void ShowNextBoardButton(bool visible, bool enabled) = 0;
    virtual void SetShowBoardCaption(std::string_view caption) = 0;

    // The score counter. Digits 0 to 9; a digit or sign stands at y 4 and is 13 x 17.
    virtual void CopyPicture(CounterPicture from, CounterPicture to) = 0;
    virtual void DrawDigit(CounterPicture to, int digit, int x) = 0;
    virtual void DrawMinus(CounterPicture to, int x) = 0;
    virtual void EraseDigit(int x) = 0;
    virtual void RefreshCounter() = 0;
    virtual void BlankScoreCounter(CounterPicture picture) = 0;
};
