#include "core/column_totals.h"

#include "core/show.h"

namespace {
constexpr int bonusThreshold = 63;
}

int TotalValue(const Game& game, ScoreColumn column, TotalRow row) { return TextValue(game.card[column].totals[row]); }

void AddToTotal(Game& game, ScoreColumn column, TotalRow row, int points) {
    SetTotalText(game, column, row, std::to_string(TotalValue(game, column, row) + points));
}

void CompleteProduct(Game& game, ScoreColumn column) {
    const auto& boxes = game.card[column].boxes;
    const int product = (TextValue(boxes[rowMax]) - TextValue(boxes[rowMin])) * TextValue(boxes[rowOnes]);
    SetTotalText(game, column, TotalRow::Product, std::to_string(product));
    AddToTotal(game, column, TotalRow::ColumnTotal, product);
}

void GiveBonusIfEarned(Game& game, ScoreColumn column) {
    if (TotalValue(game, column, TotalRow::SubTotal) < bonusThreshold) return;
    AddToTotal(game, column, TotalRow::SubTotal, bonusPoints);
    AddToTotal(game, column, TotalRow::ColumnTotal, bonusPoints);
    game.session.BonusGiven[column] = true;
}

int* UpperCount(GameSession& session, ScoreColumn column) {
    if (column == ScoreColumn::Rand) return &session.RandUpperCount;
    if (column == ScoreColumn::Oblg) return &session.OblgUpperCount;
    return nullptr;
}

int GrandTotal(const Game& game) {
    if (!FourColumns(game.settings)) return TotalValue(game, ScoreColumn::Rand, TotalRow::ColumnTotal);
    int total = 0;
    for (ScoreColumn column : allColumns) total += TotalValue(game, column, TotalRow::ColumnTotal);
    return total;
}
