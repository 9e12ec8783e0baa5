#include "table/window/frm_lucky_cup.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QWindow>
#include <cassert>
#include <utility>

#include "core/hints.h"
#include "core/turn.h"
#include "kit/look.h"
#include "kit/pointers.h"
#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/main_window.h"
#include "table/presses.h"
#include "table/window/key_bindings.h"

namespace {
constexpr Qt::WindowFlags fixedWindow = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                        Qt::WindowCloseButtonHint;

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// The code of a key of the table, 0 for every other. A key that is held down counts once, or Enter would roll a whole
// turn away.
int KeyCode(const QKeyEvent& event) {
    if (event.isAutoRepeat() || event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return keyEnter;
        case Qt::Key_Space:
            return keySpace;
        default:
            return 0;
    }
}

std::function<void(Game&)> IfRollOpen(void (*handler)(Game&)) {
    return [handler](Game& game) {
        if (RollOpen(game)) handler(game);
    };
}
}  // namespace

frmLuckyCup::frmLuckyCup(EventGate& gate, Art& art) : QMainWindow(nullptr, fixedWindow), gate_(gate), art_(art) {
    setObjectName("frmLuckyCup");
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

// Its controls report to it when they are hidden, which must not come after its end.
frmLuckyCup::~frmLuckyCup() {
    LetGo();
    hide();
}

void frmLuckyCup::Load(Game& game) {
    assert(!controls_);
    controls_.emplace(*this, art_, Counter(CounterPicture::picScore), menuStyle_, Events());
    game_ = &game;
    PlaceOnScreen();
    Run(Form_Load);
}

void frmLuckyCup::Leave() {
    if (game_) Form_Unload(*game_);
    LetGo();
}

void frmLuckyCup::SetPointers() {
    if (!game_) return;
    SetBasePointer(*this, QString::fromStdString(game_->session.AppPath));
    const QCursor hand = HandPointer(art_, devicePixelRatioF());
    controls_->board.SetPointer(hand);
    controls_->tray.SetPointers(hand, cursor());
}

void frmLuckyCup::PlaceOnScreen() {
    // The place is worked out from these, whatever the window's own size is.
    const QSize frame = Pixels(windowFrame).size();
    const QRect area = screen()->geometry();
    const QSize spare = area.size() - frame;
    const QPoint place = area.topLeft() + QPoint(spare.width() / 2, static_cast<int>(spare.height() / 4.3));
    move(IntoView({place, frame}, screen()->availableGeometry()));
}

void frmLuckyCup::Run(const std::function<void(Game&)>& handler) {
    gate_.Run([this, handler] {
        if (!game_) return;
        handler(*game_);
        if (!game_) return;  // it has left
        Follow(*game_, mark_);
        ShowMark();
        controls_->board.SetAnnounced(game_->session.Announced);
        LeadReader(game_->table);
    });
}

// A screen reader reaches what a dialog covers.
void frmLuckyCup::Play(const std::function<void(Game&)>& handler) {
    Run([this, handler](Game& game) {
        if (!Covered()) handler(game);
    });
}

bool frmLuckyCup::Covered() const {
    const QWidget* dialog = QApplication::activeModalWidget();
    return dialog && dialog != this;
}

void frmLuckyCup::ShowMark() {
    if (std::exchange(shownMark_, mark_.box) == mark_.box) return;
    controls_->board.ShowMark(mark_.box);
    if (mark_.box) return SayFocus(controls_->board.Button(mark_.box->column, mark_.box->row));
    TextLabel& written = controls_->board.BoxLabel(mark_.last.column, mark_.last.row);
    SayFocus(written.text().isEmpty() ? static_cast<QWidget&>(*this) : written);
}

// Who does not see the table hears what has come of a key: the dice that lie after a roll, a die held or released.
void frmLuckyCup::LeadReader(const TableState& table) {
    const bool sameRoll = std::exchange(toldLamps_, table.lamps) == table.lamps;
    QStringList faces;
    for (int i = 0; i < maxDice; ++i) {
        const DieState& die = table.dice[i];
        if (die.shown) faces << QString::number(die.face);
        if (std::exchange(toldHeld_[i], die.held) != die.held && sameRoll) SayFocus(controls_->tray.ShownDie(i));
    }
    if (!sameRoll && table.lamps > 0) controls_->tray.SayRoll(faces.join(' '));
}

TableControls::Events frmLuckyCup::Events() {
    return {
        .firstPicture =
            [this] {
                SetPointers();
                SetGameIcon(art_);
            },
        .board = BoardEvents(),
        .tray = TrayEvents(),
        .commands = {.run = [this](GameCommand command) { Play(command); }, .exit = [this] { AskToLeave(); }},
    };
}

Board::Events frmLuckyCup::BoardEvents() {
    return {
        .click =
            [this](ScoreColumn column, int row) {
                Play([=, this](Game& game) {
                    mark_.last = {column, row};
                    PressBox(game, column, row);
                });
            },
        .hover = [this](ScoreColumn column, int row, bool onButton) { Hover(column, row, onButton); },
    };
}

void frmLuckyCup::Hover(ScoreColumn column, int row, bool onButton) {
    Run([=, this](Game& game) {
        if (!onButton)
            LeaveBox(game, {column, row});
        else if (!mark_.box)
            cmdBox_MouseMove(game, column, row, true);
    });
}

DiceTray::Events frmLuckyCup::TrayEvents() {
    return {
        .rollDown = [this] { Play(IfRollOpen(picRollDices_MouseDown)); },
        .rollUp = [this] { Play(IfRollOpen(picRollDices_MouseUp)); },
        .rollCancelled = [this] { Run(CancelRollPress); },
        .nextPlayer = [this] { Play(PressNextPlayer); },
        .showBoard = [this] { Play(PressShowBoard); },
        .die = [this](int i) { Play([i](Game& game) { PressDie(game, i); }); },
    };
}

void frmLuckyCup::SetBoxText(ScoreColumn column, int row, const std::string& text) {
    controls_->board.SetBoxText(column, row, Text(text));
}

void frmLuckyCup::SetTotalText(ScoreColumn column, TotalRow row, const std::string& text) {
    controls_->board.SetTotalText(column, row, Text(text));
}

void frmLuckyCup::SetTipText(int row, const std::string& text) {
    controls_->labels.SetTip(row, Text(text));
    controls_->board.SetHint(row, Text(text));
}

void frmLuckyCup::ShowTipColumn(bool on) {
    controls_->labels.ShowTips(on);
    controls_->board.ShowHints(on);
}

void frmLuckyCup::SetFrameHeight(int columns) {
    controls_->labels.SetFrameHeight(columns);
    controls_->lines.SetFrameHeight(columns);
}

void frmLuckyCup::LayOut(int columns, int lastDieIndex) {
    controls_->labels.LayOut(columns);
    controls_->lines.LayOut(columns);
    controls_->board.LayOut(columns);
    controls_->tray.LayOut(columns, lastDieIndex);
    Put(*controls_->score, scorePlace.In(columns));
}

// Qt takes a single [*] for its mark of a changed document.
void frmLuckyCup::SetTitle(std::string_view text) { setWindowTitle(Text(text).replace("[*]", "[*][*]")); }

void frmLuckyCup::SetWindowHeight(int twips) {
    const int inner = twips - frameAndMenuHeight;
    FixSize(*controls_->area, windowWidth, inner);
    Put(*controls_->statusBar, {0, inner - statusBarHeight, windowWidth, statusBarHeight});
    layout()->activate();
}

void frmLuckyCup::SetPanelText(int k, std::string_view text) { controls_->statusBar->SetPanelText(k, Text(text)); }

void frmLuckyCup::SetUndoEnabled(bool on) {
    controls_->menuBar->SetUndoEnabled(on);
    controls_->toolBar->SetUndoEnabled(on);
}

void frmLuckyCup::SetRedoEnabled(bool on) {
    controls_->menuBar->SetRedoEnabled(on);
    controls_->toolBar->SetRedoEnabled(on);
}

void frmLuckyCup::ShowChoice(MenuChoice choice, bool on) {
    controls_->menuBar->ShowChoice(choice, on);
    if (choice == MenuChoice::Sounds) controls_->toolBar->ShowSound(on);
    if (choice == MenuChoice::Music) controls_->toolBar->ShowMusic(on);
}

void frmLuckyCup::EnableCheckedHintEntries(bool byRequest, bool allways) {
    controls_->menuBar->EnableCheckedHintEntries(byRequest, allways);
}

void frmLuckyCup::SetShowBoardCaption(std::string_view caption) { controls_->tray.SetShowBoardCaption(Text(caption)); }

void frmLuckyCup::CopyPicture(CounterPicture from, CounterPicture to) { Counter(to) = Counter(from); }

void frmLuckyCup::DrawDigit(CounterPicture to, int digit, int x) {
    Counter(to).Draw(static_cast<char>('0' + digit), x);
}

void frmLuckyCup::DrawMinus(CounterPicture to, int x) { Counter(to).Draw('-', x); }

void frmLuckyCup::EraseDigit(int x) { Counter(CounterPicture::picScore).Erase(x); }

void frmLuckyCup::BlankScoreCounter(CounterPicture picture) {
    Counter(picture) = {};
    if (picture == CounterPicture::picScore) controls_->score->Refresh();
}

void frmLuckyCup::keyPressEvent(QKeyEvent* event) {
    if (const int code = KeyCode(*event)) return Play([code](Game& game) { Form_KeyPress(game, code); });
    const auto key = PlayerKeyOf(*event);
    if (!key) return QMainWindow::keyPressEvent(event);
    Play([this, key](Game& game) {
        PressKey(game, mark_, *key);
        if (Repeats(*key)) shownMark_.reset();  // a movement tells where the mark is, also at an edge
    });
}

void frmLuckyCup::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    windowHandle()->installEventFilter(this);
}

// A mouse that moves takes over from the mark, before it comes onto a control. What the desktop reports of one that
// rests does not count.
bool frmLuckyCup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const QPointF place = static_cast<QMouseEvent*>(event)->globalPosition();
        if (std::exchange(mouse_, place) != place && mark_.kept) Run([this](Game& game) { TakeMarkAway(game, mark_); });
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmLuckyCup::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::StyleChange && isVisible()) SetPointers();
    if (event->type() != QEvent::WindowStateChange || minimized_ == isMinimized()) return;
    minimized_ = isMinimized();
    Run([minimized = minimized_](Game& game) { Form_Resize(game, minimized); });
}

void frmLuckyCup::closeEvent(QCloseEvent* event) {
    // A question that is asked in the middle of closing could be left unanswered by closing once more.
    event->setAccepted(game_ == nullptr);
    if (game_ && isEnabled()) QMetaObject::invokeMethod(this, &frmLuckyCup::AskToLeave, Qt::QueuedConnection);
}

void frmLuckyCup::AskToLeave() {
    if (std::exchange(leaving_, true)) return;
    Run([this](Game& game) {
        leaving_ = !Covered() && Form_QueryUnload(game);
        if (!leaving_) return;
        LetGo();
        gate_.Shut();
        close();
    });
}
