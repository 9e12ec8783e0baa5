#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QTreeWidget>

#include "app/desktop_shell.h"
#include "core/start.h"
#include "table/row_names.h"
#include "table/window/key_bindings.h"
#include "tests/files.h"
#include "tests/visits.h"

namespace {

void ExpectPlace(const char* name, const QWidget& over) {
    QWidget& window = *Shown(name);
    ExpectPlan(window, name);
    EXPECT_LE((window.frameGeometry().center() - over.frameGeometry().center()).manhattanLength(), 2) << name;
}

// Starts of the program, with the table in the place of its window.
struct Session : Visits {
    Session() {
        game.session.OpenedFromGame = false;
        window.hide();
        dialogs.SetShowMainWindow([this] {
            log.push_back("table");
            window.show();
        });
    }
    void Start() {
        window.hide();
        game.session.PlayPressed = false;
        const bool stays = ::Start(game);
        EXPECT_EQ(stays, game.session.PlayPressed);
    }
};

TEST(Welcome, LeadsEverywhereByKeysAndByMouse) {
    Session t;
    t.Play(CasesOf("visits.txt", "welcome"),
           {{"start", [&] { t.Start(); }},
            {"look", [] { ExpectPlan(*Shown("frmWelcome"), "frmWelcome"); }},
            {"look at the guide", [] { ExpectPlace("frmQuickStart", *Shown("frmWelcome")); }}});
}

TEST(Welcome, SettlesTheNextStart) {
    Session t;
    t.describe = [&](const QWidget&) {
        const GameSettings kept = t.store.LoadSettings();
        return kept.ShowDialog || kept.ShowSplash
                   ? QString("D").repeated(kept.ShowDialog) + QString("S").repeated(kept.ShowSplash)
                   : "-";
    };
    const auto given = [&](bool splash) {
        return [&t, splash] {
            t.store.SaveSettings({.ShowDialog = true, .ShowSplash = splash});
            t.Log();
        };
    };
    t.Play(CasesOf("starts.txt"),
           {{"start", [&] { t.Start(); }}, {"given D", given(false)}, {"given DS", given(true)}});
}

TEST(Splash, EndsOnce) {
    Session t;
    QElapsedTimer clock;
    const auto open = [&] {
        t.window.hide();
        clock.start();
        t.dialogs.frmSplash(t.game);
        const QWidget& splash = *Shown("frmSplash");
        const QSize screen = splash.screen()->size();
        const QPoint place((screen.width() * 15 - 378) / 3, (screen.height() * 15 - 210 * 16) / 2);
        EXPECT_EQ(splash.geometry(), QRect(place / 15, QSize(378, 210)));
        EXPECT_TRUE(splash.windowFlags().testFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    };
    t.Play(CasesOf("visits.txt", "splash"), {{"open", open},
                                             {"wait", [] {}},
                                             {"it took its time", [&] { EXPECT_GE(clock.elapsed(), 599); }},
                                             {"click", [] { QTest::mouseClick(Shown("frmSplash"), Qt::LeftButton); }},
                                             {"rest", [] { QTest::qWait(700); }}});
    t.dialogs.UnloadSplash();
    EXPECT_EQ(t.Log(), "");
}

TEST(About, DisablesTheTableUntilItHasGone) {
    Visits t;
    t.Play(CasesOf("visits.txt", "about"), {{"open", [&] { t.dialogs.frmAbout(t.game); }},
                                            {"look", [&] { ExpectPlace("frmAbout", t.window); }},
                                            {"menu", [&] { t.ClickEntry("mnuAbout"); }}});
    std::optional<QtDialogs> others(std::in_place, t.window, t.gate, t.art);
    others->frmAbout(t.game);
    EXPECT_TRUE(!t.window.isEnabled() && Shown("frmAbout")->isEnabled());
    others.reset();  // as the process does that ends
    EXPECT_TRUE(t.window.isEnabled() && !Shown("frmAbout"));
}

double Luminance(const QColor& colour) {
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

template <typename Visit>
void ForEachPart(const QTextDocument& text, Visit visit) {
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) visit(part.fragment().charFormat(), block);
}

void ExpectPictures(const QTextDocument& text) {
    ForEachPart(text, [&](const QTextCharFormat& format, const QTextBlock&) {
        const QString picture = format.toImageFormat().name();
        EXPECT_TRUE(picture.isEmpty() ||
                    !text.resource(QTextDocument::ImageResource, picture).value<QPixmap>().isNull());
    });
}

// Of a window with a text: its letters, and the paragraph from which it shows or in which something is selected.
QString TextInView(const QWidget& window) {
    const auto* view = window.findChild<QTextBrowser*>();
    if (!view) return {};
    const QTextCursor chosen = view->textCursor();
    const QTextBlock block = (chosen.hasSelection() ? chosen : view->cursorForPosition({20, 5})).block();
    return QString("%1 %2 <%3>")
        .arg(view->document()->defaultFont().pixelSize())
        .arg(block.text().left(20), chosen.selectedText());
}

// The guide, beside the table.
struct Guide : Visits {
    QWidget& Open() {
        dialogs.frmQuickStart(game);
        return *::Shown("frmQuickStart");
    }
    QTextBrowser& view = In<QTextBrowser>(Open(), "RichTextBox1");
};

TEST(Guide, SaysWhatItIsToldInLightLetters) {
    Guide t;
    ExpectPlace("frmQuickStart", t.window);
    const QTextDocument& text = *t.view.document();
    QStringList found;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const int heading = block.blockFormat().headingLevel();
        const QString mark(heading == 0 ? 0 : heading == 1 ? 2 : 1, '*');
        found << mark + block.text().replace(QChar::Nbsp, ' ').replace(QChar::ObjectReplacementCharacter, u'☺') + mark;
    }
    EXPECT_EQ(found.join('\n'), CasesOf("guide.txt").join('\n'));
    ExpectPictures(text);
    const QColor ground(0, 51, 102);
    EXPECT_EQ(t.view.grab().toImage().pixelColor(5, 5), ground);
    QSet<QRgb> inks;
    bool bold = false;
    ForEachPart(text, [&](const QTextCharFormat& format, const QTextBlock& block) {
        const QBrush own = format.foreground();
        const QColor ink = own == Qt::NoBrush ? t.view.palette().color(QPalette::Text) : own.color();
        EXPECT_GE((Luminance(ink) + 0.05) / (Luminance(ground) + 0.05), 7) << block.text().toStdString();
        inks << ink.rgb();
        bold |= block.blockFormat().headingLevel() == 0 && format.fontWeight() > QFont::Normal;
    });
    EXPECT_TRUE(inks.size() == 3 && bold) << "headings and what is stressed stand out";
}

// The letters that a file was printed with, without blanks, pictures and the numbers of pages.
QString Letters(QString text) { return text.remove(QRegularExpression("\\n\\s*\\d+\\s*\\f|[\\s\\x{A0}\\x{FFFC}]")); }

QString PdfText(const QString& file) {
    QProcess reader;
    reader.start("pdftotext", {file, "-"});
    reader.waitForFinished();
    return Letters(QString::fromUtf8(reader.readAllStandardOutput()));
}

TEST(Guide, IsReadAndPrintedBesideTheTable) {
    Visits t;
    t.describe = TextInView;
    const auto select = [](const char* words) {
        return [words] { EXPECT_TRUE(In<QTextBrowser>(*Shown("frmQuickStart"), "RichTextBox1").find(words)); };
    };
    const auto to = [&](const QString& file) {
        return [file, &t] {
            QWidget& dialog = *QApplication::activeModalWidget();
            In<QLineEdit>(dialog, "filename").setText(QDir(t.folder.path()).absoluteFilePath(file));
            dynamic_cast<QDialog&>(dialog).accept();
        };
    };
    t.Play(CasesOf("visits.txt", "guide"), {{"open", [&] { t.dialogs.frmQuickStart(t.game); }},
                                            {"select Free Column", select("Free Column")},
                                            {"select Thank You", select("Thank You")},
                                            {"to all.pdf", to("all.pdf")},
                                            {"to words.pdf", to("words.pdf")},
                                            {"to nowhere", to("/proc/guide.pdf")},
                                            {"unload", [&] { t.dialogs.UnloadQuickStart(); }}});
    EXPECT_EQ(QApplication::clipboard()->text(), "Free Column");
    EXPECT_EQ(PdfText(t.folder.filePath("all.pdf")),
              Letters(CasesOf("guide.txt").join("")).remove(QRegularExpression("[*☺]")));
    EXPECT_EQ(PdfText(t.folder.filePath("words.pdf")), "FreeColumn");
}

// The help of a file that holds this text, or of none.
struct Help {
    explicit Help(const QByteArray& text) {
        QFile file(folder.filePath("LCHelp23.hlp"));
        EXPECT_TRUE(text.isNull() || (file.open(QIODevice::WriteOnly) && file.write(text) == text.size()));
        file.close();
        shell.ShowHelpContents();
    }

    QTemporaryDir folder;
    Art art;
    DesktopShell shell{folder.path().toStdString() + '/', "/where/the <scores> lie", art};
};

TEST(Help, ShowsNothingOfAFileThatIsNotWhole) {
    const QByteArray whole = BytesOf(HELP_FILE);
    for (const QByteArray& text : {QByteArray(), QByteArray(""), whole.left(whole.size() / 2), whole + '\xFF'}) {
        const Help help(text);
        EXPECT_FALSE(Shown("Help"));
    }
}

// The keys of the window, those of its menus and the few that are neither.
QStringList KeysOfTheTable() {
    QStringList keys = QString("Enter Space F10 Alt+G Alt+T Alt+H Ctrl+plus Ctrl+minus Ctrl+0 Ctrl+wheel").split(' ');
    const Visits t;
    for (const QAction* entry : t.window.findChildren<QAction*>())
        if (!entry->shortcut().isEmpty()) keys << entry->shortcut().toString();
    for (unsigned held = 0; held < 8; ++held)
        for (int key = 0; key < 0x200; ++key) {
            const auto modifiers = Qt::KeyboardModifiers::fromInt(held * Qt::ShiftModifier);
            const auto code = static_cast<Qt::Key>(key < 0x100 ? key : Qt::Key_Escape + key - 0x100);
            if (PlayerKeyOf(QKeyEvent(QEvent::KeyPress, code, modifiers)))
                keys << QKeySequence(modifiers | code).toString().replace("Return", "Enter");
        }
    keys.removeDuplicates();
    keys.sort();
    return keys.filter(QRegularExpression("^(?!Shift\\+[1-6]$)"));  // Shift makes no difference to a digit
}

TEST(Help, TellsOfEverythingAndItsLinksLead) {
    const Help help(BytesOf(HELP_FILE));
    QWidget& window = *Shown("Help");
    const QTextDocument& text = *In<QTextBrowser>(window, "text").document();
    EXPECT_TRUE(!window.isModal() && text.toPlainText().contains("/where/the <scores> lie"));
    ExpectPictures(text);
    QStringList links, anchors;
    ForEachPart(text, [&](const QTextCharFormat& format, const QTextBlock&) {
        anchors << format.anchorNames();
        if (!format.anchorHref().isEmpty()) links << format.anchorHref();
    });
    QString chapters;
    for (QTreeWidgetItemIterator entry(&In<QTreeWidget>(window, "contents")); *entry; ++entry) {
        links << '#' + (*entry)->data(0, Qt::UserRole).toString();
        chapters += (*entry)->text(0) + ", ";
    }
    EXPECT_GT(links.size(), 60);
    for (const QString& link : links)
        EXPECT_TRUE(link.startsWith('#') && anchors.contains(link.mid(1))) << link.toStdString();
    for (const char* row : rowNames) EXPECT_TRUE(chapters.contains(row)) << row;
    for (const char* column : {"Down, the", "Up, the", "Free, the", "Announce, the", "Announcing, step by step"})
        EXPECT_TRUE(chapters.contains(column)) << column;
    const QTextTable* keys = text.find("Holds or releases that die").currentTable();
    ASSERT_TRUE(keys);
    QString told;
    for (int row = 1; row < keys->rows(); ++row)
        told += (row > 1 ? ", " : "") + keys->cellAt(row, 0).firstCursorPosition().block().text();
    QStringList all = told.replace("1 to 6", "1, 2, 3, 4, 5, 6").replace(" or ", ", ").split(", ");
    all.sort();
    EXPECT_EQ(all, KeysOfTheTable());
}

TEST(Help, IsReadByMouseAndKeys) {
    Visits t;
    t.describe = TextInView;
    Help help(BytesOf(HELP_FILE));
    t.Play(CasesOf("visits.txt", "help"),
           {{"open", [&] { help.shell.ShowHelpContents(); }}, {"close the help", [&] { help.shell.CloseHelp(); }}});
}

}  // namespace
