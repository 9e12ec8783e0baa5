#include "dialogs/window/frm_the_winer_is.h"

#include <QPushButton>

#include "core/end_of_game.h"
#include "kit/controls.h"
#include "kit/sized_widgets.h"

namespace {
constexpr int scoreFont = 13;  // 9.75 points
constexpr int verdictFont = 16;

// What stands behind a name and is never cut.
constexpr const char* scoreTail = "'s Total Score:";
constexpr const char* verdictTail = " Wins!";
}  // namespace

frmTheWinerIs::frmTheWinerIs(QWidget& owner, Game& game, Art& art)
    : DialogWindow(owner, "frmTheWinerIs", "And the Winer is...", 3915, 2010) {
    PlaceOverOwner();
    const WinnerTexts texts = frmTheWinerIs_Load(game);
    AddLabel("lblPlayer1", {180, 105, 2500, 280}, scoreFont, texts.lblPlayer1, scoreTail);
    AddLabel("lblScore1", {3000, 105, 800, 280}, scoreFont, texts.lblScore1);
    AddLabel("lblPlayer2", {180, 495, 2500, 240}, scoreFont, texts.lblPlayer2, scoreTail);
    AddLabel("lblScore2", {3000, 500, 800, 280}, scoreFont, texts.lblScore2);
    QLabel* verdict = AddLabel("lblWiner", {200, 1000, 3500, 300}, verdictFont, texts.lblWiner, verdictTail);
    verdict->setAlignment(Qt::AlignCenter);
    QPalette red = verdict->palette();
    red.setColor(QPalette::WindowText, Qt::red);
    verdict->setPalette(red);

    auto* close = new QPushButton("Close", this);
    close->setObjectName("cmdClose");
    Put(*close, {980, 1500, 1890, 420});
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    Equip(game, art, {close});
}

QLabel* frmTheWinerIs::AddLabel(const char* name, const Place& place, int fontPixels, const std::string& text,
                                const QString& tail) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    Put(*label, place);
    SetLetters(*label, TableFont(true), fontPixels);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    label->setText(FittedText(QString::fromStdString(text), tail, label->font(), label->width()));
    label->setAccessibleName(QString::fromStdString(text));
    return label;
}
