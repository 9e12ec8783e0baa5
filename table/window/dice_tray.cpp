#include "table/window/dice_tray.h"

#include <QMouseEvent>

#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/window/tool_tips.h"

namespace {
QString Index(const char* array, int i) { return QString("%1_%2").arg(array).arg(i); }

PictureButton::Looks FreeLooks(int face) { return {.plain = Index("die_free", face)}; }
PictureButton::Looks RollingLooks(int face) { return {.plain = Index("die_roll", face)}; }
PictureButton::Looks HeldLooks(int face) { return {.plain = Index("die_held", face)}; }

void SayDie(QWidget& die, int i, int face, const char* state) {
    Say(die, QString("Die %1 shows %2, %3").arg(i + 1).arg(face).arg(state));
}

PictureButton::Looks RollLooks(RollPicture kind) {
    switch (kind) {
        case RollPicture::Up:
            return {.plain = "roll_up"};
        case RollPicture::On:
            return {.plain = "roll_on"};
        case RollPicture::Off:
            return {.plain = "roll_off"};
    }
    return {};
}
}  // namespace

RollButton::RollButton(QWidget* parent, Art& art, std::function<void()> cancelled)
    : PictureButton("picRollDices", parent, art, RollLooks(RollPicture::Up)), cancelled_(std::move(cancelled)) {
    setAccessibleName("Roll the dice");
}

void RollButton::SetDimmed(bool on) {
    dimmed_ = on;
    update();
}

void RollButton::paintEvent(QPaintEvent* event) {
    PictureButton::paintEvent(event);
    if (dimmed_) QPainter(this).fillRect(rect(), colour::dimmed);
}

// The release of a mouse button goes to the modal window that has come up meanwhile.
bool RollButton::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked && held_) {
        held_ = {};
        cancelled_();
    }
    return PictureButton::event(event);
}

void RollButton::mousePressEvent(QMouseEvent* event) {
    held_ |= event->button();
    emit pressed();
}

void RollButton::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasHeld = held_.testFlag(event->button());
    held_ &= ~Qt::MouseButtons(event->button());
    if (wasHeld) emit released();
}

DiceTray::DiceTray(QWidget* table, Art& art, const Events& events)
    : tray_(new Well(trayPlace.name, table, colour::tray)),
      rollFrame_(new Well(rollFramePlace.name, table, colour::rollGround)),
      roll_(new RollButton(table, art, events.rollCancelled)) {
    for (int i = 0; i < maxDice; ++i) MakeDie(i, table, art, events);
    MakeRollButton(art, events);
}

void DiceTray::MakeDie(int i, QWidget* table, Art& art, const Events& events) {
    Die& die = At(i);
    die.frame = new Shape(dieFrameNames[i], table, QColor());  // the shadow of a die lies in its picture
    die.free = new PictureButton(Index("picDice", i), table, art, {});
    die.held = new PictureButton(Index("PicDiceOff", i), table, art, {});
    SayChecked(*die.free, false);
    SayChecked(*die.held, true);
    ShowFree(i);
    ShowFace(i, i + 1);
    EnableDie(i, false);
    QObject::connect(die.free, &QAbstractButton::clicked, die.free, [press = events.die, i] { press(i); });
    QObject::connect(die.held, &QAbstractButton::clicked, die.held, [press = events.die, i] { press(i); });
}

void DiceTray::MakeRollButton(Art& art, const Events& events) {
    QObject::connect(roll_, &QAbstractButton::pressed, roll_, events.rollDown);
    QObject::connect(roll_, &QAbstractButton::released, roll_, events.rollUp);
    lamps_ = new QWidget(roll_->parentWidget());
    lamps_->setObjectName("lamps");
    lamps_->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int k = 0; k < lampCount; ++k) {
        const Place place{lampLefts[k], lampTop, lampSize, lampSize};
        darkLamps_[k] = new Picture(Index("picRoundBG", k), roll_, art, "lamp_dark");
        litLamps_[k] = new Picture(Index("picRound", k), roll_, art, "lamp_lit");
        darkLamps_[k]->setToolTip(lampsTip);
        litLamps_[k]->setToolTip(lampsTip);
        Put(*darkLamps_[k], place);
        Put(*litLamps_[k], place);
    }
    SetLamps(0);
    nextPlayer_ = new CaptionButton("cmdNextPlayer", roll_->parentWidget());
    nextPlayer_->SetCaption("Next Player");
    nextPlayer_->setToolTip(nextPlayerTip);
    nextPlayer_->hide();
    QObject::connect(nextPlayer_, &QAbstractButton::clicked, nextPlayer_, events.nextPlayer);
    showBoard_ = new CaptionButton("cmdShowNextBoard", roll_->parentWidget());
    showBoard_->setToolTip(showBoardTip);
    ShowNextBoardButton(false, false);
    QObject::connect(showBoard_, &QAbstractButton::clicked, showBoard_, events.showBoard);
}

void DiceTray::LayOut(int columns, int lastDieIndex) {
    Put(*tray_, trayPlace.In(columns));
    Put(*rollFrame_, rollFramePlace.In(columns));
    const Place roll = rollPlace.In(columns);
    Put(*roll_, roll);
    constexpr int lampsWidth = lampLefts[lampCount - 1] + lampSize - lampLefts[0];
    Put(*lamps_, Within(roll, {lampLefts[0], lampTop, lampsWidth, lampSize}));
    Put(*nextPlayer_, Within(roll, nextPlayerPlace));
    Put(*showBoard_, Within(roll, showBoardPlace));
    for (int i = 0; i < maxDice; ++i) {
        const Place place = DiePlace(i, columns, lastDieIndex);
        Put(*At(i).free, place);
        Put(*At(i).held, place);
        Put(*At(i).frame, DieFramePlace(i, columns, lastDieIndex));
        At(i).frame->setVisible(i <= lastDieIndex);
    }
}

void DiceTray::SetPointers(const QCursor& hand, const QCursor& base) {
    for (Die& die : dice_) die.free->setCursor(hand);
    roll_->setCursor(hand);
    showBoard_->setCursor(hand);
    nextPlayer_->setCursor(base);
}

void DiceTray::SetRollPicture(RollPicture kind) { roll_->SetLooks(RollLooks(kind)); }

void DiceTray::ShowFace(int i, int face) {
    At(i).free->SetLooks(FreeLooks(face));
    At(i).held->SetLooks(HeldLooks(face));
    SayDie(*At(i).free, i, face, "free");
    SayDie(*At(i).held, i, face, "held");
}

void DiceTray::ShowRollingFace(int i, int face) { At(i).free->SetLooks(RollingLooks(face)); }

void DiceTray::SayRoll(const QString& faces) {
    lamps_->setAccessibleDescription("The dice show " + faces);
    SayFocus(*lamps_);
}

QWidget& DiceTray::ShownDie(int i) { return At(i).held->isHidden() ? *At(i).free : *At(i).held; }

void DiceTray::ShowFree(int i) {
    At(i).free->show();
    At(i).held->hide();
}

void DiceTray::ShowHeld(int i) {
    At(i).held->show();
    At(i).free->hide();
}

void DiceTray::Hide(int i) {
    At(i).free->hide();
    At(i).held->hide();
}

void DiceTray::EnableDie(int i, bool on) {
    At(i).free->setEnabled(on);
    At(i).held->setEnabled(on);
}

void DiceTray::SetLamps(int n) {
    for (int k = 0; k < lampCount; ++k) {
        litLamps_[k]->setVisible(k < n);
        darkLamps_[k]->setVisible(k >= n);
    }
    Say(*lamps_, QString("Roll %1 of %2").arg(n).arg(lampCount));
}

void DiceTray::ShowNextPlayer(bool on) {
    nextPlayer_->setVisible(on);
    roll_->SetDimmed(on);
}

void DiceTray::ShowNextBoardButton(bool visible, bool enabled) {
    showBoard_->setVisible(visible);
    showBoard_->setEnabled(enabled);
}
