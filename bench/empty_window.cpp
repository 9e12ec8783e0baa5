// The yardstick for start, memory and idling: the least that a Qt window of the game's size and place costs.
// empty_window X Y WIDTH HEIGHT, in pixels.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const auto number = [&](int i) { return application.arguments().value(i).toInt(); };
    QWidget window;
    window.setWindowTitle("Empty window");
    window.move(number(1), number(2));
    window.setFixedSize(number(3), number(4));
    window.show();
    return application.exec();
}
