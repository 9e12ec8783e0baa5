#include "dialogs/window/printing.h"

#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSaveFile>

#include "kit/controls.h"
#include "kit/message_box.h"

namespace {

bool WritePdf(const QPrinter& printer, const QTextDocument& document) {
    QSaveFile file(printer.outputFileName());
    if (!file.open(QIODevice::WriteOnly)) return false;
    {
        QPdfWriter pdf(&file);
        pdf.setPageLayout(printer.pageLayout());
        pdf.setTitle(printer.docName());
        document.print(&pdf);
    }
    return file.commit();
}

bool PrintOn(QPrinter& printer, const QTextDocument& document) {
    if (!printer.outputFileName().isEmpty()) return WritePdf(printer, document);
    document.print(&printer);
    return printer.printerState() != QPrinter::Error && printer.printerState() != QPrinter::Aborted;
}

bool AskWhere(QWidget& window, QPrinter& printer) {
    QPrintDialog dialog(&printer, &window);
    dialog.setFont(window.font());
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) button->setIcon({});
    return dialog.exec() == QDialog::Accepted;
}

void Tell(QWidget& window, Art& art, MessageIcon icon, const QString& text) {
    ShowMessageBox(&window, art, {"Print", text.toStdString(), icon, MessageButtons::Ok});
}

}  // namespace

QFont PaperFont() {
    constexpr double letters = 10.5;  // points
    QFont font = TableFont(false);
    font.setPointSizeF(letters);
    return font;
}

void Print(QWidget& window, Art& art, const QTextDocument& document, const QString& title) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    if (QPrinterInfo::defaultPrinter().isNull() && !AskWhere(window, printer))
        return Tell(window, art, MessageIcon::Information, "Nothing was printed.");
    if (!PrintOn(printer, document))
        Tell(window, art, MessageIcon::Warning, QString("%1 could not be printed.").arg(title));
}
