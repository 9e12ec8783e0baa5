#include "dialogs/window/help_window.h"

#include <QBoxLayout>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStringDecoder>
#include <QTextBlock>
#include <algorithm>

#include "dialogs/window/art_document.h"
#include "dialogs/window/printing.h"
#include "kit/controls.h"
#include "kit/pointers.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"
#include "kit/spoken.h"

namespace {
constexpr const char* title = "Lucky Cup Help";
constexpr const char* colours =
    "body{color:#1b1b2b} h1{color:#003366} h2{color:#14508c} th{background-color:#e0e6f2} "
    "th,td{border-color:#b8c4d8} a{color:#14508c}";
constexpr QSize roomySize(860, 600);
constexpr int contentsWidth = 280, contentsStep = 12;
constexpr int letterStep = 2, leastLetters = 9, mostLetters = 33;  // pixels

// The text of the file, or nothing when it is not whole.
QString ReadHelp(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString html = utf8.decode(file.readAll());
    return utf8.hasError() || !html.trimmed().endsWith("</html>") ? QString() : html;
}

QString WithScoresFolder(QString html, const QString& folder) {
    static const QRegularExpression place(R"(<span class="scores-folder">.*?</span>)",
                                          QRegularExpression::DotMatchesEverythingOption);
    const qsizetype at = html.indexOf(place);
    if (at < 0) return html;
    const qsizetype length = place.match(html, at).capturedLength();
    return html.replace(at, length, "<b>" + folder.toHtmlEscaped() + "</b>");
}
}  // namespace

std::unique_ptr<HelpWindow> OpenHelp(const QString& programFolder, const QString& scoresFolder, Art& art) {
    const QString html = ReadHelp(QDir(programFolder).filePath("LCHelp23.hlp"));
    if (html.isEmpty()) return nullptr;
    return std::make_unique<HelpWindow>(programFolder, WithScoresFolder(html, scoresFolder), art);
}

HelpWindow::HelpWindow(const QString& programFolder, const QString& html, Art& art)
    : programFolder_(programFolder),
      art_(art),
      html_(html),
      text_(new QTextBrowser),
      contents_(new QTreeWidget),
      find_(new QLineEdit) {
    setObjectName("Help");
    setWindowTitle(title);
    SetRole(*this, QAccessible::Window);
    setAttribute(Qt::WA_QuitOnClose, false);
    SetLetters(*this, TableFont(false));
    resize(Sized(roomySize).boundedTo(screen()->availableSize()));
    text_->setObjectName("text");
    text_->setAccessibleName(title);
    FitToSize();
    AddContents();
    auto* both = new QSplitter;
    both->addWidget(contents_);
    both->addWidget(text_);
    both->setSizes({Sized(contentsWidth), width() - Sized(contentsWidth)});
    both->setStretchFactor(1, 1);
    both->setChildrenCollapsible(false);
    auto* all = new QVBoxLayout(this);
    all->addLayout(MakeBar());
    all->addWidget(both, 1);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, find_, [this] {
        find_->setFocus();
        find_->selectAll();
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    SetPointers();
    text_->setFocus();
}

void HelpWindow::FitToSize() {
    SetLetters(*text_, TableFont(false), letters_);
    auto* document = new ArtDocument(art_, {devicePixelRatioF(), Sized(1.0)}, text_->font(), colours, html_, text_);
    document->setDocumentMargin(SizedDown(letters_));
    ShowInPlace(*text_, document);
    contents_->setIndentation(Sized(contentsStep));
    find_->setFixedWidth(Sized(contentsWidth));
}

void HelpWindow::SetPointers() {
    SetBasePointer(*this, programFolder_);
    for (auto* button : findChildren<QPushButton*>()) button->setCursor(HandPointer(art_, devicePixelRatioF()));
}

void HelpWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::StyleChange) return;
    FitToSize();
    SetPointers();
}

QLayout* HelpWindow::MakeBar() {
    auto* bar = new QHBoxLayout;
    const auto add = [&](const char* name, const char* caption, const char* tip, QKeySequence::StandardKey key,
                         auto click) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        button->setToolTip(QString("%1 (%2)").arg(tip, QKeySequence(key).toString(QKeySequence::NativeText)));
        button->setAccessibleName(tip);
        connect(button, &QPushButton::clicked, this, click);
        connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
        bar->addWidget(button);
        return button;
    };
    QPushButton* back =
        add("back", "Back", "Back to where you were", QKeySequence::Back, [this] { text_->backward(); });
    back->setEnabled(false);
    connect(text_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    add("smaller", "A\u2212", "Smaller text", QKeySequence::ZoomOut, [this] { Resize(letters_ - letterStep); });
    add("larger", "A+", "Larger text", QKeySequence::ZoomIn, [this] { Resize(letters_ + letterStep); });
    add("print", "Print", "Print the help", QKeySequence::Print, [this] { Print(); });
    bar->addStretch();
    find_->setObjectName("find");
    find_->setPlaceholderText("Find in this help");
    find_->setAccessibleName("Find in this help");
    find_->setClearButtonEnabled(true);
    connect(find_, &QLineEdit::returnPressed, this, &HelpWindow::Find);
    bar->addWidget(find_);
    add("findNext", "Find", "Find the next place", QKeySequence::FindNext, [this] { Find(); });
    return bar;
}

void HelpWindow::AddContents() {
    contents_->setObjectName("contents");
    contents_->setAccessibleName("Contents");
    contents_->setHeaderHidden(true);
    QTreeWidgetItem* chapter = nullptr;
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0) continue;
        auto* item = level == 1 || !chapter ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(chapter);
        if (level == 1) chapter = item;
        item->setText(0, block.text());
        item->setToolTip(0, block.text());
        for (auto part = block.begin(); !part.atEnd(); ++part)
            for (const QString& name : part.fragment().charFormat().anchorNames()) item->setData(0, Qt::UserRole, name);
    }
    contents_->expandAll();
    const auto go = [this](QTreeWidgetItem* item) {
        text_->setSource(QUrl("#" + item->data(0, Qt::UserRole).toString()));
    };
    text_->setSource(QUrl("#"));  // the top is a place that Back can come to
    connect(contents_, &QTreeWidget::itemClicked, this, go);
    connect(contents_, &QTreeWidget::itemActivated, this, go);
}

// Goes to the next place, and from the last one on to the first.
void HelpWindow::Find() {
    const QString wanted = find_->text();
    bool found = wanted.isEmpty() || text_->find(wanted);
    if (!found) {
        const QTextCursor here = text_->textCursor();
        text_->moveCursor(QTextCursor::Start);
        found = text_->find(wanted);
        if (!found) text_->setTextCursor(here);
    }
    QPalette ink = palette();
    if (!found) ink.setColor(QPalette::Text, Qt::red);
    find_->setPalette(ink);
}

void HelpWindow::Resize(int pixels) {
    letters_ = std::clamp(pixels, leastLetters, mostLetters);
    const QTextCursor read = text_->cursorForPosition({0, 0});
    SetLetters(*text_, TableFont(false), letters_);
    QScrollBar& bar = *text_->verticalScrollBar();
    bar.setValue(bar.value() + text_->cursorRect(read).top());
}

void HelpWindow::Print() {
    const ArtDocument paper(art_, {paperRatio}, PaperFont(), colours, html_);
    ::Print(*this, art_, paper, title);
}
