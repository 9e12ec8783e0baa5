#include <QAccessible>
#include <QDialogButtonBox>
#include <QMenuBar>
#include <QRegularExpression>

#include "tests/window_table.h"

namespace {

QAccessibleInterface& Spoken(QObject& object) { return *QAccessible::queryAccessibleInterface(&object); }
void Press(QObject& object) {
    QAccessibleActionInterface& actions = *Spoken(object).actionInterface();
    for (const QString& name : actions.actionNames())
        if (name == actions.pressAction() || name == actions.toggleAction()) actions.doAction(name);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

// What holds others and says nothing itself, and the parts that the toolkit makes.
bool MayBeNameless(const QAccessibleInterface& control) {
    constexpr std::array holders{QAccessible::Client,   QAccessible::LayeredPane, QAccessible::Pane,
                                 QAccessible::Splitter, QAccessible::Separator,   QAccessible::ScrollBar,
                                 QAccessible::Border,   QAccessible::Window,      QAccessible::Cell};
    return std::ranges::count(holders, control.role()) || qobject_cast<QDialogButtonBox*>(control.object());
}

// Every control below this one that a screen reader comes to, with those that have no name or none to be said.
void ExpectNames(const QAccessibleInterface& control, const QString& where) {
    const QString name = control.text(QAccessible::Name);
    const QString here = where + '/' + (name.isEmpty() ? QString::number(control.role()) : name);
    EXPECT_TRUE(MayBeNameless(control) || !name.trimmed().isEmpty()) << here.toStdString() << " has no name";
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
    t.dialogs.frmAbout(t.game);
    t.dialogs.frmQuickStart(t.game);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window == &t.window) continue;
        met << window->windowTitle();
        ExpectNames(Spoken(*window), "");
        window->close();
    }
    EXPECT_EQ(met.size(), 8) << met.join(' ').toStdString();
}

TEST(Spoken, ControlsTellWhatAPlayerSees) {
    using Role = QAccessible::Role;
    WindowTable t(VariantOf(0), Ticks::ByHand);
    const auto expect = [&](const char* control, const char* name, Role role, bool checked = false) {
        const QAccessibleInterface& spoken = Spoken(t.At(control));
        EXPECT_EQ(spoken.text(QAccessible::Name), name) << control;
        EXPECT_EQ(spoken.role(), role) << control;
        EXPECT_EQ(spoken.state().checked, checked) << control;
    };
    t.random.faces = {5, 5, 5, 2, 2, 1};
    Press(t.At("picRollDices"));
    Press(t.At("picDice_1"));
    const struct {
        const char *control, *name;
        Role role;
        bool checked;
    } told[] = {
        {"picDice_3", "Die 4 shows 2, free", Role::CheckBox, false},
        {"PicDiceOff_1", "Die 2 shows 5, held", Role::CheckBox, true},
        {"lamps", "Roll 1 of 3", Role::StaticText, false},
        {"cmdRand_9", "Rand column, Full House, open, would score 39", Role::Button, false},
        {"cmdOblg_11", "Announce column, 4 of a Kind, open", Role::Button, false},
        {"tbSound", "Sounds On/Off", Role::CheckBox, true},
    };
    for (const auto& [control, name, role, checked] : told) expect(control, name, role, checked);
    EXPECT_TRUE(Spoken(t.At("tbUndo")).state().disabled && Spoken(t.At("cmdNextPlayer")).state().invisible);
    t.Key(Qt::Key_Left);
    EXPECT_TRUE(Spoken(t.At("cmdRand_0")).state().focused);
    Press(t.At("cmdRand_9"));
    expect("lblRand_9", "Rand column, Full House: 39", Role::StaticText);
    Press(t.At("cmdRand_9"));  // hidden
    Press(t.At("cmdRand_3"));
    EXPECT_EQ(t.game.session.BoxesFilled, 1);
    t.answer = [&](QWidget& modal) {
        for (const char* covered : {"picRollDices", "tbUndo", "tbNew", "tbExit"}) Press(t.At(covered));
        modal.close();
    };
    t.Key(Qt::CTRL | Qt::Key_O);
    EXPECT_TRUE(t.game.session.BoxesFilled == 1 && t.game.session.RollCount == 0 && t.window.isVisible());
}

}  // namespace
