#include <QAccessible>
#include <QMenuBar>
#include <QMetaEnum>
#include <QRegularExpression>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/window_table.h"

namespace {

QAccessibleInterface& Spoken(QObject& object) { return *QAccessible::queryAccessibleInterface(&object); }
void Press(QObject& object) {
    QAccessibleActionInterface& actions = *Spoken(object).actionInterface();
    for (const QString& name : actions.actionNames())
        if (name == actions.pressAction() || name == actions.toggleAction()) actions.doAction(name);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

// A control and all that a screen reader comes to below it: role, name, state, and what it is described by.
void Write(std::ostream& out, const QAccessibleInterface& control, int depth = 0) {
    const QAccessible::State state = control.state();
    const QString name = control.text(QAccessible::Name), described = control.text(QAccessible::Description);
    out << std::string(static_cast<std::size_t>(2 * depth), ' ')
        << QMetaEnum::fromType<QAccessible::Role>().valueToKey(control.role()) << ": " << name.toStdString()
        << (state.checked ? " [checked]" : "") << (state.disabled ? " [off]" : "");
    if (!described.isEmpty() && described != name) out << " (" << described.toStdString() << ')';
    out << '\n';
    for (int i = 0; i < control.childCount(); ++i) {
        QAccessibleInterface& child = *control.child(i);
        EXPECT_EQ(control.indexOfChild(&child), i) << name.toStdString();
        const bool empty = child.role() == QAccessible::Cell && child.text(QAccessible::Name).isEmpty();
        if (!child.state().invisible && !empty) Write(out, child, depth + 1);
    }
}

TEST(Spoken, ControlsOfAllWindowsAreToldAsInTheFile) {
    std::ostringstream told;
    for (const int variant : {0, 7}) {
        WindowTable t(VariantOf(variant), Ticks::ByHand);
        t.random.faces = {5, 5, 5, 2, 2, 1};
        for (Qt::Key key : {Qt::Key_Return, Qt::Key_2, Qt::Key_Right}) t.Key(key);
        Write(told, Spoken(t.window));
        if (variant) break;
        t.game.session.OpenedFromGame = true;
        t.answer = [&](QWidget& modal) {
            Write(told, Spoken(modal));
            modal.close();
            if (modal.isVisible()) QTest::keyClick(&modal, Qt::Key_Return);
        };
        for (QMenu* menu : t.window.menuBar()->findChildren<QMenu*>(QRegularExpression("^mnu"))) {
            menu->popup({});
            Write(told, Spoken(*menu));
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
        std::map<QString, QWidget*> beside;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window != &t.window) beside[window->objectName()] = window;
        for (const auto& [name, window] : beside) {
            Write(told, Spoken(*window));
            window->close();
        }
    }
    std::ostringstream wanted;
    wanted << std::ifstream(CASES "names.txt").rdbuf();
    EXPECT_EQ(told.str(), wanted.str());
}

TEST(Spoken, PressesAreThoseOfAPlayer) {
    WindowTable t(VariantOf(0), Ticks::ByHand);
    t.random.faces = {5, 5, 5, 2, 2, 1};
    for (const char* control : {"picRollDices", "picDice_1", "cmdRand_9", "cmdRand_9", "cmdRand_3", "cmdNextPlayer"})
        Press(t.At(control));  // the last three are hidden
    EXPECT_EQ(t.game.session.BoxesFilled, 1);
    EXPECT_EQ(t.Text("lblRand", rowFullHouse), "39");
    t.answer = [&](QWidget& modal) {
        for (const char* covered : {"picRollDices", "tbUndo", "tbNew", "tbExit"}) Press(t.At(covered));
        modal.close();
    };
    t.Key(Qt::CTRL | Qt::Key_O);
    EXPECT_TRUE(t.game.session.BoxesFilled == 1 && t.game.session.RollCount == 0 && t.window.isVisible());
}

}  // namespace
