#include "table/window/menu_bar.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>
#include <span>

#include "core/new_game.h"
#include "kit/art_icon.h"
#include "kit/spoken.h"
#include "table/commands.h"
#include "table/presses.h"

namespace {
enum class Kind { Command, Checked, Exit, Separator };

struct MenuEntry {
    const char* name;
    const char* caption = "";
    const char* shortcut = "";
    const char* picture = "";
    Kind kind = Kind::Command;
    GameCommand command = nullptr;
};

constexpr MenuEntry Line(const char* name) { return {name, "", "", "", Kind::Separator}; }
constexpr MenuEntry Checked(const char* name, const char* caption) {
    return {name, caption, "", "menu_check", Kind::Checked};
}
constexpr MenuEntry Switch(const char* name, const char* caption, GameCommand command) {
    return {name, caption, "", "", Kind::Command, command};
}

constexpr MenuEntry gameMenu[] = {
    {"mnuNewGame", "&New Game", "F2", "menu_new", Kind::Command, mnuNewGame_Click},
    {"mnuOptions", "&Options...", "Ctrl+O", "menu_options", Kind::Command, mnuOptions_Click},
    {"mnuScores", "&Show Top Scores...", "Ctrl+H", "menu_scores", Kind::Command, mnuScores_Click},
    Line("mnuHyphen1"),
    {"mnuGameExit", "E&xit", "Ctrl+X", "menu_exit", Kind::Exit},
};

constexpr MenuEntry toolsMenu[] = {
    {"mnuUndoUndo", "&Undo", "", "menu_undo", Kind::Command, [](Game& game) { PressUndo(game); }},
    {"mnuUndoRedo", "&Redo", "", "menu_redo", Kind::Command, [](Game& game) { PressRedo(game); }},
    Line("mnuHyphen2"),
    Checked("mnuHintsByRequest", "Show &Hints by Request"),
    Switch("mnuHintsByRequest2", "S&how Hints by Request", mnuHintsByRequest2_Click),
    Checked("mnuHintsAllways", "Show Hints &Allways"),
    Switch("mnuHintsAllways2", "Show &Hints Allways", mnuHintsAllways2_Click),
    Line("mnuHyphen3"),
    Checked("mnuSoundsOn", "Turn S&ound Effects On"),
    Switch("mnuSoundsOn2", "Turn Sound &Effects On", mnuSoundsOn2_Click),
    Checked("mnuSoundsOff", "Turn Sou&nd Effects Off"),
    Switch("mnuSoundsOff2", "Turn Sound E&ffects Off", mnuSoundsOff2_Click),
    Line("mnuHyphen4"),
    Checked("mnuMusicOn", "Turn &Music On"),
    Switch("mnuMusicOn2", "Turn M&usic On", mnuMusicOn2_Click),
    Checked("mnuMusicOff", "Turn Mu&sic Off"),
    Switch("mnuMusicOff2", "Turn Mus&ic Off", mnuMusicOff2_Click),
};

constexpr MenuEntry helpMenu[] = {
    {"mnuQuickStar", "&Quick Start...", "", "menu_quickstart", Kind::Command, mnuQuickStar_Click},
    {"mnuContents", "Help &Contents...", "F1", "menu_help", Kind::Command, mnuContents_Click},
    Line("mnuHyphen5"),
    {"mnuGoToWeb", "&Visit Web Site...", "", "menu_visitweb", Kind::Command, mnuGoToWeb_Click},
    {"mnuContact", "&Contact the Author...", "", "menu_sendmail", Kind::Command, mnuContact_Click},
    Line("mnuHyphen6"),
    {"mnuAbout", "&About LuckyCup...", "", "menu_about", Kind::Command, mnuAbout_Click},
};

// The entries of a choice by what they say: the choice is on, or it is off.
struct Pairs {
    const char *checkedOn, *switchOn, *checkedOff, *switchOff;
};

constexpr Indexed<Pairs, 3, MenuChoice> pairs{{{
    {"mnuHintsAllways", "mnuHintsAllways2", "mnuHintsByRequest", "mnuHintsByRequest2"},
    {"mnuSoundsOn", "mnuSoundsOn2", "mnuSoundsOff", "mnuSoundsOff2"},
    {"mnuMusicOn", "mnuMusicOn2", "mnuMusicOff", "mnuMusicOff2"},
}}};

QSize PictureSize(QStringView picture) {
    if (picture == u"menu_check") return {15, 15};
    if (picture == u"menu_sendmail") return {18, 16};
    return {16, 16};
}

// It marks what is in force: it is checked and stays so, whoever clicks it.
void MakeChecked(QAction& action) {
    action.setCheckable(true);
    action.setChecked(true);
    (new QActionGroup(&action))->addAction(&action);
}

void AddEntry(QMenu& menu, const MenuEntry& entry, Art& art, const CommandRunner& runner) {
    QAction* action = entry.kind == Kind::Separator ? menu.addSeparator() : menu.addAction(entry.caption);
    action->setObjectName(entry.name);
    action->setShortcut(QKeySequence(entry.shortcut));
    action->setIconVisibleInMenu(true);  // also on a desktop that would rather have none
    const QString picture = entry.picture;
    if (!picture.isEmpty()) action->setIcon(ArtIcon(art, picture, PictureSize(picture)));
    if (entry.kind == Kind::Checked) MakeChecked(*action);
    if (entry.kind == Kind::Exit) QObject::connect(action, &QAction::triggered, action, runner.exit);
    if (entry.kind == Kind::Command)
        QObject::connect(action, &QAction::triggered, action,
                         [runner, command = entry.command] { runner.run(command); });
}

void AddMenu(MenuBar& bar, const char* name, const char* caption, std::span<const MenuEntry> entries, Art& art,
             const CommandRunner& runner) {
    QMenu* menu = bar.addMenu(caption);
    menu->setObjectName(name);
    Say(*menu, QString(caption).remove('&'));
    for (const MenuEntry& entry : entries) AddEntry(*menu, entry, art, runner);
}
}  // namespace

MenuBar::MenuBar(QWidget* parent, Art& art, const CommandRunner& runner) : QMenuBar(parent) {
    Say(*this, "Menu bar");
    AddMenu(*this, "mnuGame", "&Game", gameMenu, art, runner);
    AddMenu(*this, "mnuTools", "&Tools", toolsMenu, art, runner);
    AddMenu(*this, "mnuHelp", "&Help", helpMenu, art, runner);
    undo_ = Entry("mnuUndoUndo");
    redo_ = Entry("mnuUndoRedo");
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this,
            [this] { setActiveAction(actions().front()); });
}

// A bar that was left keeps the focus; without a menu chosen on it the keys are those of the table. An open menu hands
// on the keys that it does not know.
void MenuBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F10) {
        // Setting no action active would leave the bar ready to open what the mouse comes over.
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QMenuBar::keyPressEvent(&escape);
    } else if (activeAction()) {
        QMenuBar::keyPressEvent(event);
    } else {
        event->ignore();
    }
}

// A bar with the focus shows the entry under the mouse as selected by keys, so the mouse takes the focus from it.
void MenuBar::mouseMoveEvent(QMouseEvent* event) {
    if (hasFocus() && !activeAction()) clearFocus();
    QMenuBar::mouseMoveEvent(event);
}

void MenuBar::SetStyle(QStyle& style) {
    style.polish(this);  // gives it its letters, in which the next line measures it
    setStyle(&style);
    for (QMenu* menu : findChildren<QMenu*>()) menu->setStyle(&style);
}

void MenuBar::ShowChoice(MenuChoice choice, bool on) {
    const Pairs& entries = pairs[choice];
    Entry(entries.checkedOn)->setVisible(on);
    Entry(entries.switchOn)->setVisible(!on);
    Entry(entries.checkedOff)->setVisible(!on);
    Entry(entries.switchOff)->setVisible(on);
}

void MenuBar::EnableCheckedHintEntries(bool byRequest, bool allways) {
    Entry("mnuHintsByRequest")->setEnabled(byRequest);
    Entry("mnuHintsAllways")->setEnabled(allways);
}
