#include "kit/message_box.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace {
QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Stop:
            return QMessageBox::Critical;
        case MessageIcon::Information:
            return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}
}  // namespace

Answer ShowMessageBox(QWidget* parent, const Message& message) {
    const bool mayCancel = message.buttons == MessageButtons::OkCancel;
    QMessageBox box(parent);
    box.setIcon(IconOf(message.icon));
    box.setWindowTitle(QString::fromStdString(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    box.setStandardButtons(mayCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    for (QAbstractButton* button : box.buttons()) button->setIcon({});
    const int button = box.exec();
    return mayCancel && button != QMessageBox::Ok ? Answer::Cancel : Answer::Ok;
}
