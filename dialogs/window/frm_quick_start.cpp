#include "dialogs/window/frm_quick_start.h"

#include <QBoxLayout>
#include <QEvent>
#include <QFile>
#include <QPushButton>

#include "dialogs/window/art_document.h"
#include "dialogs/window/printing.h"
#include "kit/controls.h"
#include "kit/size.h"

// The guide lies in a static library, which the linker would take without it.
static void TakeGuide() { Q_INIT_RESOURCE(guide); }

namespace {
constexpr QColor ground(0, 51, 102), light(0xE8, 0xEE, 0xF8), gold(0xFF, 0xE0, 0x8A);
constexpr const char* onGround = "body{color:#e8eef8} h1,h2,h3{color:#ffe08a} .term{color:#ffffff}";
constexpr const char* onPaper = "body{color:#000000}";
constexpr int textFont = 13;

QString Guide(const char* smile) {
    TakeGuide();
    QFile file(":/guide/guide.html");
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll())
        .replace("<img src=\"smile\"", QString("<img src=\"art:%1\" width=\"16\"").arg(smile));
}

void SetColours(QTextBrowser& view) {
    QPalette colours = view.palette();
    colours.setColor(QPalette::Base, ground);
    colours.setColor(QPalette::Text, light);
    colours.setColor(QPalette::Highlight, gold);
    colours.setColor(QPalette::HighlightedText, ground);
    view.setPalette(colours);
}
}  // namespace

frmQuickStart::frmQuickStart(const QWidget& over, QWidget* owner, const Game& game, Art& art)
    : DialogWindow(owner, "frmQuickStart", "Quick Start", 9705, 6030),
      art_(art),
      RichTextBox1_(new QTextBrowser(this)) {
    setAttribute(Qt::WA_QuitOnClose, false);
    RichTextBox1_->setObjectName("RichTextBox1");
    RichTextBox1_->setAccessibleName("Quick-start guide");
    SetColours(*RichTextBox1_);
    ShowGuide();
    auto* print = new QPushButton("&Print");
    print->setObjectName("cmdPrint");
    connect(print, &QPushButton::clicked, this, &frmQuickStart::Print);
    auto* ok = new QPushButton("&OK");
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(print);
    buttons->addStretch();
    buttons->addWidget(ok);
    auto* all = new QVBoxLayout(this);
    all->addWidget(RichTextBox1_);
    all->addLayout(buttons);
    SetPointers(game, art, {print, ok});
    PlaceOver(over);
}

void frmQuickStart::ShowGuide() {
    const SizeWithin window(SizeIn(*this));
    auto* guide = new ArtDocument(art_, {devicePixelRatioF(), Sized(1.0)}, TableFont(false, textFont), onGround,
                                  Guide("smile"), RichTextBox1_);
    constexpr int margin = 14;
    guide->setDocumentMargin(Sized(margin));
    ShowInPlace(*RichTextBox1_, guide);
}

void frmQuickStart::changeEvent(QEvent* event) {
    DialogWindow::changeEvent(event);
    if (event->type() == QEvent::StyleChange) ShowGuide();
}

// What is selected, or else all of it, in dark on white.
void frmQuickStart::Print() {
    ArtDocument paper(art_, {paperRatio}, PaperFont(), onPaper, Guide("smile_dark"));
    const QTextCursor chosen = RichTextBox1_->textCursor();
    if (chosen.hasSelection()) {
        QTextCursor whole(&paper);
        whole.setPosition(chosen.selectionEnd());
        whole.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        whole.removeSelectedText();
        whole.setPosition(0);
        whole.setPosition(chosen.selectionStart(), QTextCursor::KeepAnchor);
        whole.removeSelectedText();
    }
    ::Print(*this, art_, paper, "Quick Start");
}
