#pragma once

#include <QLineEdit>
#include <QTextBrowser>
#include <QTreeWidget>
#include <memory>

#include "dialogs/window/dialog_window.h"

// The help: its contents at the left, built from the headings, the text at the right.
class HelpWindow final : public QWidget {
public:
    HelpWindow(const QString& programFolder, const QString& html, Art& art);

protected:
    void changeEvent(QEvent* event) override;

private:
    void FitToSize();
    void SetPointers();
    QLayout* MakeBar();
    void AddContents();
    void Find();
    void Resize(int pixels);
    void Print();

    QString programFolder_;
    Art& art_;
    QString html_;
    QTextBrowser* text_;
    QTreeWidget* contents_;
    QLineEdit* find_;
    int letters_ = 13;  // pixels of the normal size
};

// The help of LCHelp23.hlp in the program's folder, which ends in the separator; not shown yet. Nothing when the file
// is missing or damaged. scoresFolder: where its reader finds the score files.
std::unique_ptr<HelpWindow> OpenHelp(const QString& programFolder, const QString& scoresFolder, Art& art);
