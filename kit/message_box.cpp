#include "kit/message_box.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <algorithm>

#include "kit/controls.h"
#include "kit/size.h"

namespace {
constexpr QSize iconSize(32, 32);
constexpr int textWidth = 240;  // beside the icon, so that the box is about as wide as the table

QString PictureOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Question:
            return "message_question";
        case MessageIcon::Warning:
            return "message_warning";
        case MessageIcon::Stop:
            return "message_stop";
        case MessageIcon::Information:
            return "message_information";
    }
    return {};
}

const char* SpokenIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Question:
            return "Question";
        case MessageIcon::Warning:
            return "Warning";
        case MessageIcon::Stop:
            return "Stop";
        case MessageIcon::Information:
            return "Information";
    }
    return "";
}

// One line stands beside the middle of the icon.
void WrapText(const QMessageBox& box) {
    auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    if (!label) return;
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    box.layout()->setAlignment(label, Qt::AlignLeft);
    label->setMinimumHeight(Sized(iconSize.height()));
    label->setFixedWidth(std::min(Sized(textWidth), label->fontMetrics().horizontalAdvance(label->text()) + 2));
}
}  // namespace

Answer ShowMessageBox(QWidget* parent, Art& art, const Message& message) {
    const bool mayCancel = message.buttons == MessageButtons::OkCancel;
    QMessageBox box(parent);
    box.setIconPixmap(art.Scaled(PictureOf(message.icon), Sized(iconSize), box.devicePixelRatioF()));
    box.setWindowTitle(QString::fromStdString(message.title));
    box.setFont(TableFont(false));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    box.setStandardButtons(mayCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    for (QAbstractButton* button : box.buttons()) button->setIcon({});
    WrapText(box);
    if (auto* icon = box.findChild<QLabel*>("qt_msgboxex_icon_label"))
        icon->setAccessibleName(SpokenIcon(message.icon));
    const int button = box.exec();
    return mayCancel && button != QMessageBox::Ok ? Answer::Cancel : Answer::Ok;
}
