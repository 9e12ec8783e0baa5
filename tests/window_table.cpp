#include "tests/window_table.h"

#include <QDir>
#include <QMenuBar>

#include "app/tick.h"
#include "store/top_score_files.h"

void PaintingClock::Wait(int ms) {
    log.push_back("sleep " + std::to_string(ms));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

WindowTable::WindowTable(const GameSettings& settings, Ticks ticks)
    : game(Ports{window, ticks == Ticks::ByHand ? static_cast<Timers&>(noTimers) : timers, clock, random, effects,
                 media, dialogs, scores, shell, store, parts}) {
    QDir(folder.path()).mkdir("scores");
    scores.Keep(std::make_unique<TopScoreFiles>(folder.path().toStdString() + "/scores/"));
    game.settings = settings;
    window.SetMenuStyle(menuStyle);
    timers.SetTick([this](Timer timer) { Tick(game, parts, music, timer); });
    answerer_.callOnTimeout(&answerer_, [this] { AnswerDialog(); });
    answerer_.start(2);
    window.Load(game);
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    for (QWidget* widget : window.findChildren<QWidget*>()) named[widget->objectName()] = widget;
    MoveAway();
}

void WindowTable::AnswerDialog() {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isActiveWindow() || modal->property("answered").toBool()) return;
    modal->setProperty("answered", true);
    answer(*modal);
}

QWidget& WindowTable::At(const QString& name, int i) const {
    QWidget* widget = named.value(i < 0 ? name : name + '_' + QString::number(i));
    if (!widget) throw std::out_of_range(name.toStdString());
    return *widget;
}

std::string WindowTable::Text(const QString& name, int i) const {
    return dynamic_cast<QLabel&>(At(name, i)).text().toStdString();
}

std::optional<QPoint> WindowTable::FreePoint(const QWidget& control) const {
    const QRect area = control.rect().adjusted(4, 4, -4, -4);
    for (const QPoint& point :
         {area.center(), area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()}) {
        const QPoint inWindow = control.mapTo(&window, point);
        if (window.childAt(inWindow) == &control) return inWindow;
    }
    return {};
}

void WindowTable::Click(const QString& name, int i) {
    const QWidget& control = At(name, i);
    const QPoint middle = control.mapTo(&window, control.rect().center());
    const QPoint point = FreePoint(control).value_or(middle);
    Move(point);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, point);
}

void WindowTable::ClickEntry(const char* name) {
    QAction& entry = Entry(name);
    if (!entry.isVisible()) return;
    auto* menu = dynamic_cast<QMenu*>(entry.parent());
    const auto click = [](QWidget& bar, const QAction& action, const QRect& area) {
        if (!area.isValid()) throw std::out_of_range(action.text().toStdString());
        QTest::mouseClick(&bar, Qt::LeftButton, {}, area.center());
    };
    QMenuBar& bar = *window.menuBar();
    click(bar, *menu->menuAction(), bar.actionGeometry(menu->menuAction()));
    click(*menu, entry, menu->actionGeometry(&entry));
    if (!menu->isVisible()) return;
    QTest::keyClick(menu, Qt::Key_Escape);  // a disabled entry leaves it open
    QTest::keyClick(&bar, Qt::Key_Escape);
}

void WindowTable::Move(const QPoint& point) {
    QCursor::setPos(window.mapToGlobal(point));
    QCoreApplication::processEvents();
}

void WindowTable::Key(QKeyCombination key) {
    if (!window.isActiveWindow()) window.activateWindow();  // what a window manager does when a dialog has closed
    QCoreApplication::processEvents();
    QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
}
