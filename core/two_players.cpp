#include "core/two_players.h"

#include <utility>

#include "core/player_texts.h"
#include "core/show.h"

namespace {

int ParkedValue(const std::string& text) { return text.empty() ? parkedEmpty : TextValue(text); }
std::string ParkedText(int value) { return value < parkedEmpty ? std::to_string(value) : std::string(); }

void SetUpParkedBoard(Game& game) {
    if (game.session.SecondBoardReady) return;
    ParkedBoard& parked = game.parked;
    for (ParkedColumn& column : parked.columns) {
        column.rows.fill(parkedEmpty);
        column.totals.fill(parkedEmpty);
    }
    parked.BoxesFilled = 0;
    parked.NextDownRow = 0;
    parked.NextUpRow = rowLuckyCup;
    parked.RandUpperCount = 0;
    parked.OblgUpperCount = 0;
    parked.BonusGiven = {};
    game.session.SecondBoardReady = true;
}

void SwapColumn(Game& game, ScoreColumn column) {
    ParkedColumn& parked = game.parked.columns[column];
    for (int row = 0; row < rowCount; ++row) {
        const int toPark = ParkedValue(game.card[column].boxes[row]);
        SetBoxText(game, column, row, ParkedText(std::exchange(parked.rows[row], toPark)));
    }
    for (TotalRow row : allTotalRows) {
        const int toPark = ParkedValue(game.card[column].totals[row]);
        int& parkedTotal = parked.totals[row];
        SetTotalText(game, column, row, ParkedText(std::exchange(parkedTotal, toPark)));
    }
}

// The counts that both kinds of game have.
void SwapCounts(GameSession& session, ParkedBoard& parked) {
    std::swap(session.BoxesFilled, parked.BoxesFilled);
    std::swap(session.RandUpperCount, parked.RandUpperCount);
    std::swap(session.BonusGiven, parked.BonusGiven);
}

void SwapTable(Game& game) {
    if (FourColumns(game.settings))
        SwapBoards(game);
    else
        SwapBoardOneColumn(game);
}

void ExchangeCounterPicture(Game& game, bool firstLeaves) {
    const auto [leaving, coming] = firstLeaves
                                       ? std::pair(CounterPicture::picPlayer1Score, CounterPicture::picPlayer2Score)
                                       : std::pair(CounterPicture::picPlayer2Score, CounterPicture::picPlayer1Score);
    game.view.CopyPicture(CounterPicture::picScore, leaving);
    game.view.CopyPicture(coming, CounterPicture::picScore);
    game.view.RefreshCounter();
}

}  // namespace

bool FirstPlayerOnTable(const Game& game) {
    const std::string& player = game.settings.Player1;
    return TitleNames(game, player) && game.table.panels[1].text == player;
}

int HandOver(Game& game) {
    SwapCounters(game);
    SwapTable(game);
    for (bool& second : game.session.SecondPlayerOnMove) second = !second;
    const bool toSecond = FirstPlayerOnTable(game);
    SetTitleFor(game, toSecond ? game.settings.Player2 : game.settings.Player1);
    ShowNextPlayer(game, false);
    return toSecond ? 2 : 3;
}

void SwapCounters(Game& game) {
    SwapTotals(game);
    ExchangeCounterPicture(game, FirstPlayerOnTable(game));
}

void SwapTotals(Game& game) {
    GameSession& session = game.session;
    std::swap(session.Total, session.OtherTotal);
    std::swap(session.PrevTotal, game.parked.PrevTotal);
    std::swap(session.PrevTotal2, game.parked.PrevTotal2);
}

void SwapBoards(Game& game) {
    SetUpParkedBoard(game);
    SwapCounts(game.session, game.parked);
    std::swap(game.session.NextDownRow, game.parked.NextDownRow);
    std::swap(game.session.NextUpRow, game.parked.NextUpRow);
    std::swap(game.session.OblgUpperCount, game.parked.OblgUpperCount);
    for (ScoreColumn column : allColumns) SwapColumn(game, column);
}

void SwapBoardOneColumn(Game& game) {
    SetUpParkedBoard(game);
    SwapCounts(game.session, game.parked);
    SwapColumn(game, ScoreColumn::Rand);
}

void cmdShowNextBoard_Click(Game& game) {
    const std::string& first = game.settings.Player1;
    const std::string& second = game.settings.Player2;
    const bool toFirst = CaptionNames(game, first);
    const std::string& shown = toFirst ? first : second;
    SetShowBoardCaption(game, toFirst ? second : first);
    SetTitleFor(game, shown);
    SetPanelText(game, 1, shown);
    ExchangeCounterPicture(game, !toFirst);
    SwapTable(game);
}
