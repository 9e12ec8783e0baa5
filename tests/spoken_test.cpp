#include <QAccessible>
#include <QDialogButtonBox>
#include <QMenuBar>
#include <QRegularExpression>

#include "tests/window_table.h"

namespace {

QAccessibleInterface& Spoken(QObject& object) { return *QAccessible::queryAccessibleInterface(&object); }
QString NameOf(QObject& object) { return Spoken(object).text(QAccessible::Name); }
void Press(QObject& object) {
    QAccessibleActionInterface& actions = *Spoken(object).actionInterface();
    for (const QString& name : actions.actionNames())
        if (name == actions.pressAction() || name == actions.toggleAction()) actions.doAction(name);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

// What holds others and says nothing itself, and the parts that the toolkit makes.
bool MayBeNameless(const QAccessibleInterface& control) {
    switch (control.role()) {
        case QAccessible::Client:
        case QAccessible::LayeredPane:
        case QAccessible::Pane:
        case QAccessible::Separator:
        case QAccessible::Splitter:
        case QAccessible::ScrollBar:
        case QAccessible::Border:
        case QAccessible::Window:
            return true;
        default:
            return control.role() == QAccessible::Cell || qobject_cast<QDialogButtonBox*>(control.object());
    }
}

// Every control below this one that a screen reader comes to, with those that have no name or none to be said.
void ExpectNames(const QAccessibleInterface& control, const QString& where) {
    const QString name = control.text(QAccessible::Name);
    const QString here = where + '/' + (name.isEmpty() ? QString::number(control.role()) : name);
    EXPECT_TRUE(MayBeNameless(control) || !name.trimmed().isEmpty()) << here.toStdString() << " has no name";
    EXPECT_TRUE(control.role() == QAccessible::Cell || name == name.trimmed()) << here.toStdString();
    for (int i = 0; i < control.childCount(); ++i) {
        QAccessibleInterface* child = control.child(i);
        ASSERT_TRUE(child) << here.toStdString();
        EXPECT_EQ(control.indexOfChild(child), i) << here.toStdString();
        if (!child->state().invisible) ExpectNames(*child, here);
    }
}

TEST(Spoken, EveryControlOfEveryWindowHasAName) {
    WindowTable t(VariantOf(0), Ticks::ByHand);
    t.game.session.OpenedFromGame = true;
    QStringList met;
    t.answer = [&](QWidget& modal) {
        met << modal.windowTitle();
        ExpectNames(Spoken(modal), "");
        modal.close();
        if (modal.isVisible()) QTest::keyClick(&modal, Qt::Key_Return);
    };
    ExpectNames(Spoken(t.window), "");
    t.Key(Qt::Key_Return);
    ExpectNames(Spoken(t.window), "");
    for (QMenu* menu : t.window.menuBar()->findChildren<QMenu*>(QRegularExpression("^mnu"))) {
        menu->popup({});
        ExpectNames(Spoken(*menu), "");
        menu->close();
    }
    t.dialogs.frmOptions(t.game);
    t.dialogs.frmScores2(t.game);
    t.dialogs.frmEndGame(t.game);
    t.dialogs.frmTheWinerIs(t.game);
    t.dialogs.frmWelcome(t.game);
    t.dialogs.ShowMessage({"Confirm", "Exit?", MessageIcon::Question, MessageButtons::OkCancel});
    EXPECT_EQ(met.size(), 6) << met.join(' ').toStdString();
    t.dialogs.frmAbout(t.game);
    t.dialogs.frmQuickStart(t.game);
    int beside = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window == &t.window) continue;
        ++beside;
        ExpectNames(Spoken(*window), "");
        window->close();
    }
    EXPECT_EQ(beside, 2);
}

TEST(Spoken, ControlsTellWhatAPlayerSees) {
    using Role = QAccessible::Role;
    GameSettings settings = VariantOf(0);
    settings.hintAllways = true;
    WindowTable t(settings, Ticks::ByHand);
    const auto expect = [&](const char* control, const char* name, Role role, bool checked = false) {
        const QAccessibleInterface& spoken = Spoken(t.At(control));
        EXPECT_EQ(spoken.text(QAccessible::Name), name) << control;
        EXPECT_EQ(spoken.role(), role) << control;
        EXPECT_EQ(spoken.state().checked, checked) << control;
    };
    expect("picDice_1", "Die 2 shows 2, free", Role::CheckBox);
    expect("lamps", "Roll 0 of 3", Role::StaticText);
    expect("cmdRand_9", "Rand column, Full House, closed", Role::Button);
    t.random.faces = {5, 5, 5, 2, 2, 1};
    Press(t.At("picRollDices"));
    Press(t.At("picDice_1"));
    const struct {
        const char *control, *name;
        Role role;
        bool checked;
    } told[] = {
        {"PicDiceOff_1", "Die 2 shows 5, held", Role::CheckBox, true},
        {"picDice_3", "Die 4 shows 2, free", Role::CheckBox, false},
        {"lamps", "Roll 1 of 3", Role::StaticText, false},
        {"picRollDices", "Roll the dice", Role::Button, false},
        {"cmdRand_9", "Rand column, Full House, open, would score 39", Role::Button, false},
        {"cmdOblg_11", "Announce column, 4 of a Kind, open", Role::Button, false},
        {"lblDown_0", "Down column, Ones: empty", Role::StaticText, false},
        {"lblTip_9", "Hint for Full House: 39", Role::StaticText, false},
        {"lblUpTot1", "Up column, Sub Total: empty", Role::StaticText, false},
        {"lblOption_12", "Lucky Cup", Role::StaticText, false},
        {"StatusBar1", "Status bar", Role::StatusBar, false},
        {"StatusBar1_2", "What to do: Place your score or roll the dice", Role::StaticText, false},
        {"Toolbar2", "Toolbar", Role::ToolBar, false},
        {"tbSound", "Sounds On/Off", Role::CheckBox, true},
        {"tbBGmusic", "Music On/Off", Role::CheckBox, false},
        {"tbUndo", "Undo", Role::Button, false},
        {"imgArrow", "Columns", Role::Grouping, false},
    };
    for (const auto& [control, name, role, checked] : told) expect(control, name, role, checked);
    EXPECT_TRUE(Spoken(t.At("tbUndo")).state().disabled && Spoken(t.At("cmdNextPlayer")).state().invisible);
    EXPECT_TRUE(Spoken(t.At("picDice_1")).state().invisible);
    EXPECT_TRUE(Spoken(t.At("picRound_0")).state().invisible && Spoken(t.At("Shape9")).state().invisible);
    t.Key(Qt::Key_Left);
    EXPECT_TRUE(Spoken(t.At("cmdRand_0")).state().focused);
    for (const auto& [entry, checked] : {std::pair("mnuSoundsOn", true), {"mnuSoundsOff2", false}}) {
        EXPECT_EQ(t.Entry(entry).isChecked(), checked);
        EXPECT_EQ(t.Entry(entry).isVisible(), true);
    }
    Press(t.At("cmdRand_9"));
    expect("lblRand_9", "Rand column, Full House: 39", Role::StaticText);
    EXPECT_EQ(t.game.session.BoxesFilled, 1);
    const std::string state = Spoken(t.At("cmdRand_9")).text(QAccessible::Name).toStdString();
    Press(t.At("cmdRand_9"));  // hidden
    Press(t.At("cmdRand_3"));
    Press(t.At("cmdNextPlayer"));  // never shown to one player
    EXPECT_EQ(t.game.session.BoxesFilled, 1) << state;
    t.answer = [&](QWidget& modal) {
        for (const char* covered : {"picRollDices", "tbUndo", "tbNew", "tbExit"}) Press(t.At(covered));
        modal.close();
    };
    t.Key(Qt::CTRL | Qt::Key_O);
    EXPECT_TRUE(t.game.session.BoxesFilled == 1 && t.game.session.RollCount == 0 && t.window.isVisible());
}

TEST(Spoken, ACountIsToldOnceWhenItEnds) {
    WindowTable t(VariantOf(5));
    QStringList told;
    t.random.faces = {6, 6, 6, 6, 6};
    t.Key(Qt::Key_Return);
    QTest::qWait(400);
    t.Click("cmdRand", rowLuckyCup);
    bool ended = false;
    for (int ms = 0; ms < 5000 && !(ended && told.size() > 1); ++ms) {
        if (told.isEmpty() || told.back() != NameOf(t.At("picScore"))) told << NameOf(t.At("picScore"));
        ended = t.game.session.CounterRan && !t.game.table.timers[Timer::tmrCounter].enabled;
        QTest::qWait(1);
    }
    EXPECT_EQ(told.join(','), "Grand Total: empty,Grand Total: 100");
}

}  // namespace
