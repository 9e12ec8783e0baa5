#include "dialogs/dialog_window.h"

#include "table/controls.h"
#include "table/layout.h"
#include "table/pointers.h"

DialogWindow::DialogWindow(QWidget& mainWindow, const char* name, const char* caption, int widthInTwips,
                           int heightInTwips)
    : QDialog(&mainWindow), mainWindow_(mainWindow) {
    setObjectName(name);
    setWindowTitle(caption);
    setFixedSize(Pixels(widthInTwips), Pixels(heightInTwips));
    setFont(TableFont(false));
}

void DialogWindow::PlaceOverMainWindow(int twipsBelow) {
    // Its own frame is not known before it is shown; it is as thick as that of the main window.
    const QRect main = mainWindow_.frameGeometry();
    const QSize frame = size() + main.size() - mainWindow_.size();
    move(main.left() + (main.width() - frame.width()) / 2,
         main.top() + (main.height() - frame.height()) / 2 + Pixels(twipsBelow));
}

void DialogWindow::SetPointers(const Game& game, Art& art, std::initializer_list<QWidget*> clickable) {
    SetBasePointer(*this, QString::fromStdString(game.session.AppPath));
    for (QWidget* widget : clickable) widget->setCursor(HandPointer(art, devicePixelRatioF()));
}

QString FittedText(const std::string& text, const QFont& font, int width) {
    return QFontMetrics(font).elidedText(QString::fromStdString(text), Qt::ElideMiddle, width);
}
