#include "dialogs/window/frm_welcome.h"

#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "dialogs/window/title_texts.h"
#include "kit/controls.h"
#include "kit/look.h"
#include "kit/sized_widgets.h"

namespace {
constexpr int left = 352, right = 5752;  // the edges of the picture, to which the rest keeps
constexpr int buttonWidth = 1260, buttonHeight = 480, buttonStep = 1380, buttonTop = 3705;
constexpr Place picturePlace{left, 210, right - left, 2250};
constexpr Place checkPlace{left, 4500, right - left - buttonStep, 255};
constexpr int exitTop = checkPlace.top + (checkPlace.height - buttonHeight) / 2;

constexpr Place InRow(int k) { return {left + k * buttonStep, buttonTop, buttonWidth, buttonHeight}; }
}  // namespace

std::vector<Art::Wanted> WelcomePictures(qreal devicePixelRatio) {
    return {Art::WantedOver("welcome", Pixels(picturePlace), devicePixelRatio)};
}

frmWelcome::frmWelcome(Game& game, Art& art)
    : DialogWindow(nullptr, "frmWelcome", "Welcome to LuckyCup 2.2.2", 6105, 5260),
      game_(game),
      Check1_(new QCheckBox("Don't show this dialog next time")) {
    Put(*new Picture("Image1", this, art, "welcome"), picturePlace);
    AddTitle(*this, {left, 2580, 3450, 390}, Qt::AlignLeft);
    AddVersion(*this, {left + 3450, 2580, right - left - 3450, 390}, Qt::AlignRight);
    const Links links = AddLinks(*this, game, {left, 3060, 900, 255});
    QPushButton* play = AddButton("cmdPlay", "&Play", InRow(0), &frmWelcome::Play);
    play->setDefault(true);
    QFont bold;
    bold.setBold(true);
    play->setFont(bold);
    QPushButton* options = AddButton("cmdOptions", "&Options", InRow(1), &frmWelcome::Options);
    QPushButton* guide = AddButton("cmdQuickStart", "&Quick Start", InRow(2), &frmWelcome::QuickStart);
    QPushButton* scores = AddButton("cmdScores", "&Top Scores", InRow(3), &frmWelcome::TopScores);
    Check1_->setParent(this);
    Check1_->setObjectName("Check1");
    Put(*Check1_, checkPlace);
    connect(Check1_, &QCheckBox::toggled, this, [this](bool on) { Check1_Change(game_, form_, on); });
    QPushButton* exit =
        AddButton("cmdExit", "&Exit", {InRow(3).left, exitTop, buttonWidth, buttonHeight}, &frmWelcome::Exit);
    afterFirstPicture_ = [=, this, &game, &art] {
        SetGameIcon(art);
        Equip(game, art, {play, options, guide, scores, exit, links.webSite, links.email});
    };
    play->setFocus();
    PlaceOnScreen();
}

void frmWelcome::paintEvent(QPaintEvent* event) {
    DialogWindow::paintEvent(event);
    if (afterFirstPicture_) QTimer::singleShot(0, this, std::exchange(afterFirstPicture_, nullptr));
}

QPushButton* frmWelcome::AddButton(const char* name, const char* caption, const Place& place,
                                   void (frmWelcome::*click)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    Put(*button, place);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void frmWelcome::PlaceOnScreen() {
    // Its own frame is not known before it is shown; this is what frames usually add.
    const QSize frame = size() + QSize(Pixels(90), Pixels(405));
    const QRect area = screen()->geometry();
    const QPoint place(area.left() + (area.width() - frame.width()) / 2,
                       area.top() + (area.height() - frame.height()) / 2);
    move(IntoView({place, frame}, screen()->availableGeometry()));
}

void frmWelcome::Play() {
    cmdPlay_Click(game_);
    accept();
}

void frmWelcome::Options() {
    cmdOptions_Click(game_, form_);
    Check1_->setChecked(form_.Check1);
}

void frmWelcome::QuickStart() { game_.dialogs.frmQuickStart(game_); }
void frmWelcome::TopScores() { game_.dialogs.frmScores2(game_); }
void frmWelcome::Exit() { reject(); }
