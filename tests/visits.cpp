#include "tests/visits.h"

#include <QFile>
#include <QMessageBox>
#include <QTreeWidget>

#include "kit/size.h"

QStringList CasesOf(const char* name, const QString& section) {
    QFile file(QString(CASES) + name);
    if (!file.open(QIODevice::ReadOnly)) throw std::out_of_range(name);
    QStringList cases;
    bool holds = section.isEmpty();
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        const bool title = line.startsWith('[') && !section.isEmpty();
        if (title) holds = line == '[' + section + ']';
        if (holds && !title && !line.startsWith('#')) cases << line;
    }
    return cases;
}

static QString NameOf(const QWidget& widget) {
    return widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
}

void ClickAt(QWidget& control, const QPoint& point) {
    QWidget& window = *control.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, control.mapTo(&window, point));
}

void Act(QWidget& window, const QString& act) {
    if (act == "close") {
        window.close();
    } else if (act.startsWith('@')) {
        auto& control = In<QWidget>(window, act.mid(1).section('/', 0, 0));
        if (auto* tree = dynamic_cast<QTreeWidget*>(&control)) {
            auto* item = tree->findItems(act.section('/', 1), Qt::MatchExactly | Qt::MatchRecursive).at(0);
            tree->scrollToItem(item);
            return ClickAt(*tree->viewport(), tree->visualItemRect(item).center());
        }
        ClickAt(control, {8, control.height() / 2});
    } else if (act.startsWith('\'')) {
        for (const QChar letter : act.mid(1)) QTest::keyClick(window.windowHandle(), letter.toLatin1());
    } else {
        if (!window.isActiveWindow()) window.activateWindow();  // what a window manager does when a dialog has closed
        QCoreApplication::processEvents();
        const QKeyCombination key = QKeySequence(act)[0];
        QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
    }
}

static void ExpectTold(QWidget& window, const QString& name, const QStringList& place, const QString& text) {
    SCOPED_TRACE(name.toStdString());
    const bool whole = name == "window";
    auto& widget = whole ? window : In<QWidget>(window, name);
    const QRect is(whole ? QPoint() : widget.mapTo(&window, QPoint()), widget.size());
    EXPECT_TRUE(window.rect().contains(is));
    const bool line = place.mid(2).contains("0");  // to which its end point belongs
    const int found[] = {is.left(), is.top(), is.right() + 1, is.bottom() + 1};
    for (int edge = 0; place.size() == 4 && edge < 4; ++edge) {
        if (place[edge] == "*") continue;
        const int from = edge < 2 ? 0 : place[edge - 2].toInt();
        const auto wanted = static_cast<int>(std::lround((from + place[edge].toInt()) * Size() / 1500.0));
        EXPECT_EQ(found[edge], wanted + (line && edge > 1 ? 1 : 0)) << "edge " << edge;
    }
    if (text.isEmpty()) return;
    EXPECT_EQ(widget.property(whole ? "windowTitle" : "text").toString(), text);
    const QString plain = text.contains(' ') ? text : QString(text).remove('&');
    EXPECT_LE(widget.fontMetrics().horizontalAdvance(plain), widget.width());
}

void ExpectPlan(QWidget& window, const QString& section) {
    const QStringList controls = CasesOf("windows.txt", section);
    EXPECT_GT(controls.size(), 3) << section.toStdString();
    for (const QString& line : controls)
        ExpectTold(window, line.section(' ', 0, 0), line.section(' ', 1, 1).split(','), line.section(' ', 2));
}

QWidget* Shown(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible()) return window;
    return nullptr;
}

Visits::Visits(const GameSettings& settings) : WindowTable(settings) {
    answer = [](QWidget&) {};
    game.session.OpenedFromGame = true;
    Poll();
}

// By single shots, since a timer does not tick while its last tick has not returned.
void Visits::Poll() {
    QTimer::singleShot(2, &window, [this] {
        Poll();
        Step();
    });
}

std::string Visits::Log() {
    std::string all;
    for (const std::string& entry : std::exchange(log, {}))
        if (!entry.starts_with("sleep")) all += entry + ';';
    return all;
}

QWidget& Visits::InFront() const {
    for (QWidget* front : {QApplication::activeModalWidget(), QApplication::activeWindow(), last_.data()})
        if (front && front->isVisible()) return *front;
    return const_cast<frmLuckyCup&>(window);
}

// The window in front and the control that has the keyboard, the text of a message, what is to be told besides, and in
// brackets the other windows, with - behind a disabled one.
QString Visits::Front() const {
    const QWidget& front = InFront();
    QString state = NameOf(front) + (front.focusWidget() ? '.' + NameOf(*front.focusWidget()) : QString());
    if (const auto* message = dynamic_cast<const QMessageBox*>(&front))
        state = message->windowTitle() + ": " + message->text();
    else if (describe)
        state += ' ' + describe(front);
    QStringList others;
    for (const QWidget* other : QApplication::topLevelWidgets())
        if (other != &front && other->isVisible()) others << NameOf(*other) + (other->isEnabled() ? "" : "-");
    others.sort();
    return (others.isEmpty() ? state : state + " (" + others.join(' ') + ')').simplified();
}

// One act, once the one before has come to what is told, or has not in all patience. While an act runs nothing goes on
// but in a modal window that it has opened.
void Visits::Step() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (running_.contains(modal)) return;
    if (!modal && QApplication::activeWindow()) last_ = QApplication::activeWindow();
    heard_ += QString::fromStdString(Log());
    const QString found = Front() + (heard_.isEmpty() ? "" : " | " + heard_);
    if (!wanted_.isEmpty() && found != wanted_ && !patience_.hasExpired()) return;
    EXPECT_TRUE(wanted_.isEmpty() || found == wanted_) << line_.toStdString() << "\ncame to: " << found.toStdString();
    wanted_.clear();
    heard_.clear();
    if (acts_.isEmpty()) return;
    line_ = acts_.takeFirst();
    wanted_ = line_.section(" | ", 1);
    patience_.setRemainingTime(3000);
    const QString act = line_.section(" | ", 0, 0);
    running_ << modal;
    if (others_.contains(act))
        others_[act]();
    else
        Act(InFront(), act);
    running_.removeLast();
}

void Visits::Play(const QStringList& acts, const QHash<QString, std::function<void()>>& others) {
    EXPECT_FALSE(acts.isEmpty());
    Log();
    acts_ = acts;
    others_ = others;
    const auto played = [this] { return acts_.isEmpty() && wanted_.isEmpty(); };
    EXPECT_TRUE(QTest::qWaitFor(played, 120'000)) << line_.toStdString();
}
