#pragma once

#include <QAbstractTableModel>
#include <QWidget>

#include "dialogs/scores_form.h"
#include "kit/art.h"

// The rows of LVScores under their four headers.
class ScoreListModel final : public QAbstractTableModel {
public:
    ScoreListModel(QWidget& window, Art& art, qreal devicePixelRatio);

    // Replaces all rows. A row that is not selected as a whole can be selected by its first cell.
    void SetRows(const std::vector<ScoreCells>& rows, bool fullRowSelect);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QWidget& window_;
    Art& art_;
    qreal devicePixelRatio_;
    std::vector<ScoreCells> rows_;
    bool fullRowSelect_ = false;
};
