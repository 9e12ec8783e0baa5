#pragma once

#include <functional>

#include "script/counter_picture.h"
#include "script/event_log.h"
#include "table/table_view.h"

// A window that keeps its counter pictures only: all else that it is told stands in the records already.
class HeadlessView final : public TableView {
public:
    explicit HeadlessView(EventLog& log) : log_(log) {}

    const GlyphColumns& Picture(CounterPicture picture) const { return pictures_[static_cast<std::size_t>(picture)]; }

    std::function<void()> afterMinimizing;  // what a real window would report back

    void SetRollPicture(RollPicture) override {}
    void SetRollEnabled(bool) override {}
    void SetRollVisible(bool) override {}
    void ShowDieFace(int, int) override {}
    void ShowRollingFace(int, int) override {}
    void ShowDieFree(int) override {}
    void ShowDieHeld(int) override {}
    void HideDie(int) override {}
    void EnableDie(int, bool) override {}
    void SetLamps(int) override {}

    void ShowBoxButton(ScoreColumn, int, bool) override {}
    void EnableBoxButton(ScoreColumn, int, bool) override {}
    void SetBoxPicture(int, bool) override {}
    void SetBoxText(ScoreColumn, int, const std::string&) override {}
    void SetTotalText(ScoreColumn, TotalRow, const std::string&) override {}

    void SetTipText(int, const std::string&) override {}
    void ShowTipColumn(bool) override {}
    void HighlightRowLabel(int) override {}
    void ResetRowLabel(int) override {}

    void SetFrameHeight(int) override {}
    void LayOut(int, int) override {}
    void SetTitle(std::string_view) override {}
    void SetWindowHeight(int) override {}
    void MinimizeWindow() override;
    void SetPanelText(int, std::string_view) override {}
    void SetPanelLayout(int, int, bool) override {}
    void SetStatusBarVisible(bool) override {}

    void SetUndoEnabled(bool) override {}
    void SetRedoEnabled(bool) override {}
    void SetHintButtonEnabled(bool) override {}
    void ShowChoice(MenuChoice, bool) override {}
    void EnableCheckedHintEntries(bool, bool) override {}
    void ShowNextPlayer(bool) override {}
    void ShowNextBoardButton(bool, bool) override {}
    void SetShowBoardCaption(std::string_view) override {}

    void CopyPicture(CounterPicture from, CounterPicture to) override;
    void DrawDigit(CounterPicture to, int digit, int x) override;
    void DrawMinus(CounterPicture to, int x) override;
    void EraseDigit(int x) override;
    void RefreshCounter() override;
    void BlankScoreCounter(CounterPicture picture) override;

private:
    GlyphColumns& At(CounterPicture picture) { return pictures_[static_cast<std::size_t>(picture)]; }

    EventLog& log_;
    std::array<GlyphColumns, static_cast<std::size_t>(CounterPicture::picPlayer2Score) + 1> pictures_;
};
