#include "core/turn.h"

#include <algorithm>
#include <string>

#include "core/announce.h"
#include "core/effects.h"
#include "core/hints.h"
#include "core/row_scores.h"
#include "core/show.h"
#include "core/two_players.h"

namespace {

constexpr int rollingFrames = 9;
constexpr int rollingFrameMs = 60;
constexpr int automaticWriteMs = 200;

int EmptyBoxes(const ColumnCard& column) { return static_cast<int>(std::ranges::count(column.boxes, std::string())); }

// The empty table stands before the first roll with all its buttons shown and disabled. In a one-column game nothing
// but Rand is there to be enabled, and the flag stays set.
void OpenTableForFirstRoll(Game& game) {
    if (!game.session.FirstRollPending) return;
    EnableColumnButtons(game, ScoreColumn::Rand, true);
    if (!FourColumns(game.settings)) return;
    ShowColumnButtons(game, ScoreColumn::Down, false);
    ShowColumnButtons(game, ScoreColumn::Up, false);
    for (ScoreColumn column : {ScoreColumn::Down, ScoreColumn::Up, ScoreColumn::Oblg})
        EnableColumnButtons(game, column, true);
    game.session.FirstRollPending = false;
}

// With nothing but Oblg boxes left a second roll without an announcement would leave no box to write.
void RemindToAnnounce(Game& game) {
    GameSession& session = game.session;
    if (session.BoxesFilled < boxCount - rowCount || session.RollCount != 1 ||
        session.CurrentColumn == ScoreColumn::Oblg)
        return;
    const int open = EmptyBoxes(game.card[ScoreColumn::Oblg]);
    if (open != boxCount - session.BoxesFilled || open < 2) return;
    SetRollOff(game);
    game.dialogs.ShowMessage({"Reminder", "You must announce now!", MessageIcon::Warning, MessageButtons::Ok});
    session.RollAllowed = false;
}

// The very last box needs no click to be announced. The announcement counts as a roll, which is taken back here.
void AnnounceLastBox(Game& game) {
    GameSession& session = game.session;
    if (session.BoxesFilled != boxCount - 1 || session.RollCount != 0) return;
    const auto& boxes = game.card[ScoreColumn::Oblg].boxes;
    const auto open = std::ranges::find(boxes, std::string());
    if (open == boxes.end()) return;
    session.CurrentColumn = ScoreColumn::Oblg;
    session.CurrentRow = static_cast<int>(open - boxes.begin());
    session.AnnounceWriting = false;
    session.RedoAnnounceTwice = false;
    session.Announced = false;
    session.AnnounceResume = false;
    SetLamps(game, 1);
    cmdOblg_Click(game, session.CurrentRow);
    SetRedoEnabled(game, false);
    --session.RollCount;
    SetUndoEnabled(game, false);
}

int CountFreeDice(const DiceSet& dice) {
    return static_cast<int>(std::count(dice.RollFlags.begin(), dice.RollFlags.begin() + dice.LastDieIndex + 1, true));
}

void PlayRollSound(Game& game) {
    const int free = CountFreeDice(game.dice);
    if (free > 3)
        PlayEffect(game, "rollAll");
    else if (free > 1)
        PlayEffect(game, "rollSome");
    else if (free == 1)
        PlayEffect(game, "rollOne");
}

void OfferEmptyBoxes(Game& game, ScoreColumn column) {
    for (int row = 0; row < rowCount; ++row)
        if (game.card[column].boxes[row].empty()) ShowBoxButton(game, column, row, true);
}

void StartTurn(Game& game) {
    GameSession& session = game.session;
    if (session.RollCount != 0) return;
    session.AnnounceWriting = false;
    session.AnnounceResume = false;
    session.CurrentColumn = ScoreColumn::None;
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) EnableDie(game, i, true);
    OfferEmptyBoxes(game, ScoreColumn::Rand);
    if (!FourColumns(game.settings)) return;
    if (IsRow(session.NextDownRow)) ShowBoxButton(game, ScoreColumn::Down, session.NextDownRow, true);
    if (IsRow(session.NextUpRow)) ShowBoxButton(game, ScoreColumn::Up, session.NextUpRow, true);
    OfferEmptyBoxes(game, ScoreColumn::Oblg);
}

// A box can be announced between the first and the second roll only.
void CloseAnnounceWindow(Game& game) {
    GameSession& session = game.session;
    const bool missed = session.RollCount == 1 && !session.Announced;
    if (!missed && !session.AnnounceWriting) return;
    ShowColumnButtons(game, ScoreColumn::Oblg, false);
    session.AnnounceWriting = false;
}

// The rolling dice never show face 1.
void ShowRollingDice(Game& game) {
    for (int frame = 0; frame < rollingFrames; ++frame) {
        for (int i = 0; i <= game.dice.LastDieIndex; ++i)
            if (game.dice.RollFlags[i])
                game.view.ShowRollingFace(i, static_cast<int>(game.random.Next() * (facesOfADie - 1)) + 1);
        game.clock.Wait(rollingFrameMs);
    }
}

void DrawFreeDice(Game& game) {
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) {
        if (!game.dice.RollFlags[i]) continue;
        const int face = game.random.DrawDie();
        ShowDieFace(game, i, face);
        game.dice.DiceValues[i] = face;
    }
}

void ShowRound(Game& game) {
    if (TwoPlayers(game.settings)) return;
    SetPanelText(
        game, 4,
        "Round " + std::to_string(game.session.BoxesFilled + 1) + " of " + std::to_string(BoardSize(game.settings)));
}

enum class Turn { GoesOn, Ended };

Turn FinishThirdRoll(Game& game) {
    SetRollOff(game);
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) EnableDie(game, i, false);
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) game.dice.RollFlags[i] = true;
    if (!game.session.Announced && !game.session.AnnounceResume) return Turn::GoesOn;
    game.clock.Wait(automaticWriteMs);
    cmdOblg_Click(game, game.session.CurrentRow);
    SetRedoEnabled(game, false);
    return Turn::Ended;
}

Turn RollDice(Game& game) {
    ClearTips(game);
    PlayRollSound(game);
    StartTurn(game);
    CloseAnnounceWindow(game);
    if (game.session.RollCount >= rollsPerTurn) return Turn::GoesOn;
    ShowRollingDice(game);
    DrawFreeDice(game);
    ++game.session.RollCount;
    ShowRound(game);
    SetLamps(game, game.session.RollCount);
    if (game.session.RollCount == rollsPerTurn && FinishThirdRoll(game) == Turn::Ended) return Turn::Ended;
    if (game.session.HintsOn) ShowHints(game);
    return Turn::GoesOn;
}

void PlayFanfare(Game& game) {
    if (!game.session.SoundOn || !RowOffered(game.card, rowLuckyCup)) return;
    game.session.ComputeOnly = true;
    ScoreFiveOfAKind(game);
    game.session.ComputeOnly = false;
    if (game.session.RowScore == luckyCupPoints) game.effects.PlayEffect("LuckyCup");
}

void EndHintByRequest(Game& game) {
    if (!game.session.HintsRequested) return;
    game.session.HintsRequested = false;
    ShowHintColumn(game);
}

}  // namespace

void picRollDices_MouseDown(Game& game) { SetRollPicture(game, RollPicture::On); }

void CancelRollPress(Game& game) {
    if (game.table.roll.picture == RollPicture::On) SetRollPicture(game, RollPicture::Up);
}

void picRollDices_MouseUp(Game& game) {
    GameSession& session = game.session;
    session.CounterSkip = false;
    session.TipsDirty = true;
    int playerOnMove = 0;
    if (TwoPlayers(game.settings) && game.table.nextPlayer) playerOnMove = HandOver(game);
    session.GameInProgress = true;
    game.random.Reseed(game.clock.TimeOfDay());
    OpenTableForFirstRoll(game);
    SetRollPicture(game, RollPicture::Up);
    RemindToAnnounce(game);
    AnnounceLastBox(game);
    if (session.RollAllowed && RollDice(game) == Turn::Ended) return;
    PlayFanfare(game);
    EndHintByRequest(game);
    session.MayHint = true;
    SetUndoEnabled(game, false);
    SetRedoEnabled(game, false);
    game.parts.ShowCurrentPlayer(game, playerOnMove);
    SetPanelText(game, 2, session.RollCount >= rollsPerTurn ? "Place your score" : "Place your score or roll the dice");
}

void cmdNextPlayer_MouseUp(Game& game) {
    picRollDices_MouseUp(game);
    game.session.CounterRan = false;
}

void picDice_Click(Game& game, int i) {
    game.dice.RollFlags[i] = false;
    game.dice.HeldMirror[i] = false;
    ShowDieHeld(game, i);
    PlayEffect(game, "holdDice");
    if (CountFreeDice(game.dice) == 0) SetRollOff(game);
}

void PicDiceOff_Click(Game& game, int i) {
    game.dice.RollFlags[i] = true;
    game.dice.HeldMirror[i] = true;
    ShowDieFree(game, i);
    PlayEffect(game, "UnHoldDice");
    if (!game.table.roll.enabled) SetRollReady(game);
}

bool Form_KeyPress(Game& game, int code) {
    if (code == keySpace) {
        game.view.MinimizeWindow();
        return true;
    }
    if (code != keyEnter) return false;
    const bool counting = TwoPlayers(game.settings) && game.table.nextPlayer && !game.session.CounterRan;
    if (counting || !game.table.roll.enabled) return false;
    picRollDices_MouseUp(game);
    game.session.CounterRan = false;
    return true;
}
