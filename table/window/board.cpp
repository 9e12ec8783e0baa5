#include "table/window/board.h"

#include <QMouseEvent>
#include <utility>

#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/row_names.h"
#include "table/window/tool_tips.h"

namespace {
constexpr LabelLook boxLook{colour::box, colour::black, colour::boxShade, colour::boxShine};
constexpr LabelLook maxMinLook{colour::box, colour::maxMinText, colour::boxShade, colour::boxShine};
constexpr LabelLook sumLook{colour::white, colour::sumText, colour::boxShade, colour::boxShine};
constexpr LabelLook columnTotalLook{colour::columnTotal, colour::columnTotalText, colour::boxShade, colour::boxShine};

const ByTotalRow<const char*> totalSuffixes{{"Tot1", "Tot2", "Tot"}};
const ByTotalRow<const char*> totalNames{{"Sub Total", "Max minus Min times Ones", "Column Total"}};

QString Index(const QString& array, int i) { return QString("%1_%2").arg(array).arg(i); }

QString Called(ScoreColumn column, const char* what) { return QString("%1, %2").arg(SpokenColumnName(column), what); }

void SetSpokenText(TextLabel& label, const QString& called, const QString& text) {
    label.setText(text);
    Say(label, called + ": " + (text.isEmpty() ? "empty" : text));
}

PictureButton::Looks NarrowLooks(ScoreColumn column) {
    return {"box_open", "box_hot", "box_pressed", "box_empty", QString("mark_%1").arg(static_cast<int>(column))};
}
PictureButton::Looks WideLooks(int row) { return {Index("row_plain", row), {}, Index("row_pressed", row), {}}; }
PictureButton::Looks WideHotLooks(int row) {
    return {Index("row_hot", row), {}, Index("row_pressed", row), Index("row_plain", row)};
}
}  // namespace

BoxButton::BoxButton(const QString& name, QWidget* parent, Art& art, const QString& box, Hover hover)
    : PictureButton(name, parent, art, {}), box_(box), hover_(std::move(hover)) {
    setMouseTracking(true);
    setEnabled(false);
    hide();
    SayState();
}

void BoxButton::SetHint(const QString& points) {
    hint_ = points;
    SayState();
}

void BoxButton::SetAnnounced(bool on) {
    if (std::exchange(announced_, on) != on) SayState();
}

void BoxButton::SayState() {
    const QString score = isEnabled() && !hint_.isEmpty() ? ", would score " + hint_ : QString();
    Say(*this, box_ + (!isEnabled() ? ", closed" : announced_ ? ", announced" : ", open") + score);
}

void BoxButton::TellHover(bool on) {
    if (on ? !isEnabled() : !hovered_) return;
    hovered_ = on;
    hover_(on);
}

void BoxButton::enterEvent(QEnterEvent* event) {
    PictureButton::enterEvent(event);
    TellHover(true);
}

// A button that was enabled under a resting mouse, or whose light a click has put out, lights up with the next move.
void BoxButton::mouseMoveEvent(QMouseEvent* event) {
    PictureButton::mouseMoveEvent(event);
    TellHover(rect().contains(event->position().toPoint()));
}

void BoxButton::leaveEvent(QEvent* event) {
    PictureButton::leaveEvent(event);
    TellHover(false);
}

void BoxButton::hideEvent(QHideEvent* event) {
    PictureButton::hideEvent(event);
    TellHover(false);
}

void BoxButton::changeEvent(QEvent* event) {
    PictureButton::changeEvent(event);
    if (event->type() != QEvent::EnabledChange) return;
    SayState();
    if (!isEnabled()) TellHover(false);
}

Board::Board(QWidget* table, Art& art, const Events& events)
    : ground_(new Well(boxGroundPlace.name, table, colour::boxGround)),
      arrowsFour_(new Picture("imgArrow", table, art, "arrows_4")),
      arrowsOne_(new Picture("imgArrow2", table, art, "arrows_1")) {
    Put(*arrowsFour_, arrowsFourPlace);
    Put(*arrowsOne_, arrowsOnePlace);
    arrowsOne_->setToolTip(oneColumnTip);
    Say(*arrowsOne_, SpokenColumnName(ScoreColumn::Rand));
    Say(*arrowsFour_, "Columns");
    TellColumns();
    for (ScoreColumn column : allColumns) MakeColumn(column, table, art, events);
}

// The strip's four parts, from the top.
void Board::TellColumns() {
    constexpr int width = arrowsFourPlace.width, height = arrowsFourPlace.height;
    for (int i = 0; i < 4; ++i) {
        auto* part = new QWidget(arrowsFour_);
        part->setAttribute(Qt::WA_TransparentForMouseEvents);
        Put(*part, {0, i * height / 4, width, height / 4});
        const ScoreColumn column = allColumns[static_cast<std::size_t>(i)];
        part->setToolTip(columnTips[column]);
        Say(*part, SpokenColumnName(column));
    }
}

void Board::MakeColumn(ScoreColumn column, QWidget* table, Art& art, const Events& events) {
    Column& made = columns_[column];
    const QString label = QString("lbl") + ColumnName(column);
    const QFont boxFont = BoxFont();
    const QString button = QString("cmd") + ColumnName(column);
    for (int row = 0; row < rowCount; ++row) {
        const LabelLook& look = row == rowMax || row == rowMin ? maxMinLook : boxLook;
        made.boxes[row] = new TextLabel(Index(label, row), table, look, Qt::AlignHCenter);
        made.boxes[row]->setFont(boxFont);
        SetBoxText(column, row, {});
        const auto hover = [hover = events.hover, column, row](bool on) { hover(column, row, on); };
        made.buttons[row] = new BoxButton(Index(button, row), table, art, Called(column, RowName(row)), hover);
        QObject::connect(made.buttons[row], &QAbstractButton::clicked, made.buttons[row],
                         [click = events.click, column, row] { click(column, row); });
    }
    for (TotalRow row : allTotalRows) {
        const LabelLook& look = row == TotalRow::ColumnTotal ? columnTotalLook : sumLook;
        made.totals[row] = new TextLabel(label + totalSuffixes[row], table, look, Qt::AlignHCenter);
        made.totals[row]->setFont(boxFont);
        SetTotalText(column, row, {});
    }
}

void Board::LayOut(int columns) {
    const bool four = columns == 4;
    Put(*ground_, boxGroundPlace.In(columns));
    arrowsFour_->setVisible(four);
    arrowsOne_->setVisible(!four);
    for (ScoreColumn column : allColumns) {
        PlaceColumn(column, columns);
        for (int row = 0; row < rowCount; ++row)
            Button(column, row).SetLooks(four ? NarrowLooks(column) : WideLooks(row));
    }
}

void Board::PlaceColumn(ScoreColumn column, int columns) {
    const bool used = columns == 4 || column == ScoreColumn::Rand;
    for (int row = 0; row < rowCount; ++row) {
        const int top = boxTops[row];
        Put(BoxLabel(column, row), BoxPlace(column, top, boxLabelHeight, columns));
        BoxLabel(column, row).setVisible(used);
        Put(Button(column, row), BoxPlace(column, top, boxButtonHeight, columns));
    }
    for (TotalRow row : allTotalRows) {
        const int top = totalTops[row];
        Put(Total(column, row), BoxPlace(column, top, boxLabelHeight, columns));
        Total(column, row).setVisible(used && (columns == 4 || row != TotalRow::ColumnTotal));
    }
}

void Board::SetBoxText(ScoreColumn column, int row, const QString& text) {
    SetSpokenText(BoxLabel(column, row), Called(column, RowName(row)), text);
}

void Board::SetTotalText(ScoreColumn column, TotalRow row, const QString& text) {
    SetSpokenText(Total(column, row), Called(column, totalNames[row]), text);
}

void Board::SetHint(int row, const QString& points) {
    hints_[row] = points;
    SayHint(row);
}

void Board::ShowHints(bool on) {
    hintsShown_ = on;
    for (int row = 0; row < rowCount; ++row) SayHint(row);
}

void Board::SayHint(int row) {
    for (ScoreColumn column : allColumns) Button(column, row).SetHint(hintsShown_ ? hints_[row] : QString());
}

void Board::ShowMark(const std::optional<Box>& mark) {
    for (ScoreColumn column : allColumns)
        for (int row = 0; row < rowCount; ++row)
            Button(column, row).SetMarked(mark ? std::optional(*mark == Box{column, row}) : std::nullopt);
}

void Board::SetAnnounced(bool on) {
    for (int row = 0; row < rowCount; ++row) Button(ScoreColumn::Oblg, row).SetAnnounced(on);
}

void Board::SetPointer(const QCursor& pointer) {
    for (ScoreColumn column : allColumns)
        for (int row = 0; row < rowCount; ++row) Button(column, row).setCursor(pointer);
}

void Board::SetBoxPicture(int row, bool normal) {
    Button(ScoreColumn::Rand, row).SetLooks(normal ? WideLooks(row) : WideHotLooks(row));
}
