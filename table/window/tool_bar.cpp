#include "table/window/tool_bar.h"

#include <QPainter>
#include <QStyleOption>

#include "core/new_game.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"
#include "kit/spoken.h"
#include "table/commands.h"
#include "table/presses.h"
#include "table/window/layout.h"

namespace {
constexpr QSize pictureSize(16, 16);
// Twips.
constexpr int buttonSize = 360;
constexpr int separatorWidth = 135;
constexpr int leftMargin = 75;
constexpr int topMargin = 45;

constexpr int undoButton = 3, redoButton = 4, hintButton = 6, soundButton = 8, musicButton = 9;

struct Key {
    const char* name;  // empty: a separator
    const char* toolTip;
    const char* picture;
    GameCommand command;  // none: exit
};

constexpr Key separator{"", "", "", nullptr};
constexpr Indexed<Key, keyCount, int, 1> keys{{{
    {"tbNew", "New Game", "tb_new", mnuNewGame_Click},
    separator,
    {"tbUndo", "Undo", "tb_undo", [](Game& game) { PressUndo(game); }},
    {"tbRedo", "Redo", "tb_redo", [](Game& game) { PressRedo(game); }},
    separator,
    {"tbHint", "Show Hints", "tb_hint", [](Game& game) { PressHint(game); }},
    separator,
    {"tbSound", "Sounds On/Off", "tb_sound_off", tbSound_Click},
    {"tbBGmusic", "Music On/Off", "tb_music_off", tbBGmusic_Click},
    separator,
    {"tbHelp", "Quick Help", "tb_help", mnuQuickStar_Click},
    {"tbExit", "Exit Game", "tb_exit", nullptr},
}}};

// A flat key that rises under the mouse.
class ToolKey final : public QAbstractButton {
public:
    ToolKey(QWidget* parent, Art& art, const Key& key) : QAbstractButton(parent), art_(art) {
        setObjectName(key.name);
        setToolTip(key.toolTip);
        Say(*this, key.toolTip);
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_Hover);
        SetPicture(key.picture);
    }

    void SetPicture(const QString& picture) {
        picture_ = picture;
        setProperty("picture", picture);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const bool hot = isEnabled() && underMouse();
        if (hot && isDown()) PaintEdges(painter, rect(), colour::softDark, colour::softLight);
        if (hot && !isDown()) PaintEdges(painter, rect(), colour::light, colour::softDark);
        const QString look = !isEnabled() ? "_disabled" : hot ? "_hot" : "";
        const QSize size = Sized(pictureSize);
        const QPoint corner((width() - size.width()) / 2, (height() - size.height()) / 2);
        art_.Draw(painter, QRect(isDown() ? corner + QPoint(1, 1) : corner, size), picture_ + look);
    }

private:
    Art& art_;
    QString picture_;
};
}  // namespace

QStringList FirstKeyPictures() {
    return {"tb_new",       "tb_undo_disabled", "tb_redo_disabled", "tb_hint_disabled", "tb_sound_on",
            "tb_sound_off", "tb_music_on",      "tb_music_off",     "tb_help",          "tb_exit"};
}
QSize KeyPictureSize() { return Sized(pictureSize); }

ToolBar::ToolBar(QWidget* parent, Art& art, const CommandRunner& runner) : QWidget(parent) {
    setObjectName("Toolbar2");
    Say(*this, "Toolbar");
    SetRole(*this, QAccessible::ToolBar);
    int left = leftMargin;
    for (int i = 1; i <= keyCount; ++i) {
        const GameCommand command = keys[i].command;
        if (*keys[i].name == '\0') {
            left += separatorWidth;
            continue;
        }
        buttons_[i] = new ToolKey(this, art, keys[i]);
        Put(*buttons_[i], {left, topMargin, buttonSize, buttonSize});
        left += buttonSize;
        connect(buttons_[i], &QAbstractButton::clicked, this, [runner, command] {
            if (command)
                runner.run(command);
            else
                runner.exit();
        });
    }
}

void ToolBar::SetUndoEnabled(bool on) { buttons_[undoButton]->setEnabled(on); }
void ToolBar::SetRedoEnabled(bool on) { buttons_[redoButton]->setEnabled(on); }
void ToolBar::SetHintEnabled(bool on) { buttons_[hintButton]->setEnabled(on); }

void ToolBar::ShowSound(bool on) {
    static_cast<ToolKey&>(*buttons_[soundButton]).SetPicture(on ? "tb_sound_on" : "tb_sound_off");
    SayChecked(*buttons_[soundButton], on);
}

void ToolBar::ShowMusic(bool on) {
    static_cast<ToolKey&>(*buttons_[musicButton]).SetPicture(on ? "tb_music_on" : "tb_music_off");
    SayChecked(*buttons_[musicButton], on);
}

void ToolBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption ground;
    ground.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelToolBar, &ground, &painter, this);
    for (int i = 2; i <= keyCount; ++i) {
        if (buttons_[i]) continue;
        const QRect before = buttons_[i - 1]->geometry();
        const int x = before.right() + 1 + Pixels(separatorWidth) / 2, inset = Sized(2);
        const QRect line(x, before.top() + inset, std::max(1, Sized(1)), before.height() - 2 * inset);
        painter.fillRect(line, colour::softDark);
        painter.fillRect(line.translated(line.width(), 0), colour::light);
    }
}
