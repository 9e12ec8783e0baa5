// The yardstick for start, memory and idling: a Qt window of the game's size and place with as many parts, but with
// nothing to do. empty_window X Y WIDTH HEIGHT, in pixels.

#include <QApplication>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int parts = 250, inARow = 16, withText = 3;

void Fill(QWidget& window) {
    const int width = window.width() / inARow, height = window.height() * inARow / (parts + inARow);
    for (int i = 0; i < parts; ++i) {
        const QString text = i < withText ? QString::number(i) : QString();
        QWidget* part = i % 2 == 0 ? static_cast<QWidget*>(new QLabel(text, &window)) : new QPushButton(text, &window);
        part->setGeometry(i % inARow * width, i / inARow * height, width, height);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const auto number = [&](int i) { return application.arguments().value(i).toInt(); };
    QWidget window;
    window.setWindowTitle("Empty window");
    window.move(number(1), number(2));
    window.setFixedSize(number(3), number(4));
    Fill(window);
    window.show();
    return application.exec();
}
