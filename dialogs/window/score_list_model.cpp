#include "dialogs/window/score_list_model.h"

#include "kit/size.h"

namespace {
struct Header {
    const char *text, *picture;
    const char* spoken;
};

constexpr std::array<Header, std::tuple_size_v<ScoreCells>> headers{{
    {"", "header_place", "Place"},
    {"Name", "header_name", "Name"},
    {"Score", "header_score", "Score"},
    {"Date", "header_date", "Date"},
}};
constexpr QSize pictureSize(16, 16);
constexpr int leading = Qt::AlignLeft | Qt::AlignVCenter;

// On one line, whatever stands in the file.
QString OneLine(const std::string& text) {
    QString line = QString::fromStdString(text);
    for (QChar& c : line)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = ' ';
    return line;
}
}  // namespace

ScoreListModel::ScoreListModel(QWidget& window, Art& art, qreal devicePixelRatio)
    : QAbstractTableModel(&window), window_(window), art_(art), devicePixelRatio_(devicePixelRatio) {}

void ScoreListModel::SetRows(const std::vector<ScoreCells>& rows, bool fullRowSelect) {
    beginResetModel();
    rows_ = rows;
    fullRowSelect_ = fullRowSelect;
    endResetModel();
}

int ScoreListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ScoreListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headers.size());
}

QVariant ScoreListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) return leading;
    if (role != Qt::DisplayRole) return {};
    return OneLine(rows_.at(static_cast<std::size_t>(index.row())).at(static_cast<std::size_t>(index.column())));
}

QVariant ScoreListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const Header& header = headers.at(static_cast<std::size_t>(section));
    const SizeWithin window(SizeIn(window_));
    switch (role) {
        case Qt::DisplayRole:
            return header.text;
        case Qt::AccessibleTextRole:
            return header.spoken;
        case Qt::DecorationRole:
            return art_.Scaled(header.picture, Sized(pictureSize), devicePixelRatio_);
        case Qt::TextAlignmentRole:
            return leading;
        default:
            return {};
    }
}

Qt::ItemFlags ScoreListModel::flags(const QModelIndex& index) const {
    const bool selectable = fullRowSelect_ || index.column() == 0;
    return selectable ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemIsEnabled;
}
