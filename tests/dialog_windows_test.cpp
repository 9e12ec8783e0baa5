#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

#include "app/desktop_shell.h"
#include "core/links.h"
#include "dialogs/window/qt_dialogs.h"
#include "script/headless_table.h"
#include "table/row_names.h"

namespace {

struct HelpShell final : SilentShell {
    std::vector<std::string> opened;
    int helps = 0;
    void Open(const std::string& target) override { opened.push_back(target); }
    void ShowHelpContents() override { ++helps; }
    void CloseHelp() override { helps = 0; }
};

// The real windows around a main window that is nothing but a window. A modal one that opens is handed, once, to the
// visitor of its name.
struct Around {
    Around() {
        main.setGeometry(300, 100, 327, 540);
        main.show();
        game.session.OpenedFromGame = true;
        Poll();
    }

    void Poll() {
        QTimer::singleShot(2, &main, [this] {
            Poll();
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || !modal->isActiveWindow() || modal->property("visited").toBool()) return;
            modal->setProperty("visited", true);
            const QString name = modal->objectName().isEmpty() ? modal->metaObject()->className() : modal->objectName();
            visited += name.toStdString() + ' ';
            if (visitors.contains(name))
                visitors[name](*modal);
            else
                modal->close();
        });
    }

    QWidget main;
    HeadlessTable t;
    EventGate gate;
    Art art;
    std::optional<QtDialogs> windows{std::in_place, main, gate, art};
    QtDialogs& dialogs = *windows;
    HelpShell shell;
    Game game{
        Ports{t.view, t.timers, t.clock, t.random, t.effects, t.media, dialogs, t.scores, shell, t.store, t.parts}};
    QHash<QString, std::function<void(QWidget&)>> visitors;
    std::string visited;  // their names, each with a blank after it
};

template <typename T = QAbstractButton>
T& In(QWidget& window, const char* name) {
    T* found = window.findChild<T*>(name);
    if (!found) throw std::out_of_range(name);
    return *found;
}

QWidget* Shown(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible()) return window;
    return nullptr;
}

void ExpectTexts(QWidget& window, const QHash<QString, QString>& texts) {
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        auto& widget = In<QWidget>(window, text.key().toLatin1());
        EXPECT_EQ(widget.property("text").toString(), text.value());
        const QString plain = text.value().contains(' ') ? text.value() : QString(text.value()).remove('&');
        EXPECT_LE(widget.fontMetrics().horizontalAdvance(plain), widget.width()) << plain.toStdString();
        EXPECT_TRUE(window.rect().contains(widget.geometry())) << text.key().toStdString();
    }
}

void ExpectLinks(QWidget& window, HelpShell& shell) {
    for (const char* name : {"lblWebSite", "lblemail"}) {
        auto& link = In(window, name);
        EXPECT_EQ(link.cursor().shape(), Qt::BitmapCursor);
        QWidget* focus = QApplication::focusWidget();
        for (int tabs = 0; tabs < 12 && !link.hasFocus(); ++tabs)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(link.hasFocus()) << name << " from " << focus->objectName().toStdString();
        QTest::keyClick(&link, Qt::Key_Return);
        QTest::mouseClick(&link, Qt::LeftButton);
        ASSERT_EQ(shell.opened.size(), 2U);
        EXPECT_EQ(shell.opened[0], shell.opened[1]);
        EXPECT_EQ(link.toolTip().toStdString(), shell.opened[0]);
        EXPECT_TRUE(link.toolTip().endsWith(link.text()) && link.accessibleDescription().contains(link.toolTip()));
        shell.opened.clear();
    }
}

TEST(Welcome, IsAsTold) {
    Around a;
    a.game.session.OpenedFromGame = false;
    a.visitors["frmWelcome"] = [&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), "Welcome to LuckyCup 2.2.2");
        EXPECT_EQ(window.size(), QSize(407, 351));
        EXPECT_EQ(In<QWidget>(window, "Check1").y(), 300);
        const QSize spare = window.screen()->size() - window.size() - QSize(6, 27);  // its frame
        EXPECT_EQ(window.pos(), QPoint(spare.width() / 2, spare.height() / 2));
        ExpectTexts(window, {{"lblTitle", "L u c k y  C u p"},
                             {"lblVersion", "Version 2.3"},
                             {"Label1", "Web site:"},
                             {"Label2", "E-Mail:"},
                             {"lblWebSite", webSite},
                             {"lblemail", contactAddress},
                             {"cmdPlay", "&Play"},
                             {"cmdOptions", "&Options"},
                             {"cmdQuickStart", "&Quick Start"},
                             {"cmdScores", "&Top Scores"},
                             {"cmdExit", "&Exit"},
                             {"Check1", "Don't show this dialog next time"}});
        ExpectLinks(window, a.shell);
        QTest::keyClick(&window, Qt::Key_F1);
        EXPECT_EQ(a.shell.helps, 1);
        QTest::keyClick(&window, Qt::Key_Q, Qt::AltModifier);
        QTest::qWait(300);
        window.close();
    };
    a.visitors["frmQuickStart"] = [&](QWidget& guide) {
        EXPECT_TRUE(guide.isModal());
        EXPECT_LE((guide.geometry().center() - Shown("frmWelcome")->geometry().center()).manhattanLength(), 2);
        QTest::keyClick(&guide, Qt::Key_Return);
    };
    a.dialogs.frmWelcome(a.game);
    EXPECT_EQ(a.visited, "frmWelcome frmQuickStart ");
    EXPECT_EQ(a.shell.helps, 0) << "the help closes with the window";
}

TEST(Welcome, EndsWithPlayOrExit) {
    struct {
        void (*end)(QWidget&);
        bool plays;
    } const ends[] = {
        {[](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }, true},
        {[](QWidget& window) { QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier); }, true},
        {[](QWidget& window) { QTest::mouseClick(&In<QWidget>(window, "cmdPlay"), Qt::LeftButton); }, true},
        {[](QWidget& window) { QTest::mouseClick(&In<QWidget>(window, "cmdExit"), Qt::LeftButton); }, false},
        {[](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }, false},
        {[](QWidget& window) { window.close(); }, false},
    };
    for (const auto& [end, plays] : ends) {
        Around a;
        a.visitors["frmWelcome"] = end;
        a.dialogs.frmWelcome(a.game);
        EXPECT_EQ(a.game.session.PlayPressed, plays);
        EXPECT_FALSE(a.game.session.SettingsChanged);
    }
}

TEST(Welcome, ItsBoxAndTheOptionsActOnEachOther) {
    for (const bool checkedBefore : {false, true}) {
        Around a;
        a.game.session.OpenedFromGame = false;
        a.visitors["frmWelcome"] = [&](QWidget& window) {
            auto& box = In(window, "Check1");
            if (checkedBefore) QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(6, 8));
            EXPECT_TRUE(a.game.settings.ShowSplash == checkedBefore && a.game.settings.ShowDialog != checkedBefore);
            In(window, "cmdOptions").click();
            EXPECT_TRUE(box.isChecked());
            window.close();
        };
        a.visitors["frmOptions"] = [&](QWidget& options) {
            const QRect under = Shown("frmWelcome")->frameGeometry();
            EXPECT_EQ(options.y(),
                      under.top() + static_cast<int>((under.height() - options.frameGeometry().height()) / 1.5));
            In(options, "optShowNone").click();
            QTest::keyClick(&options, Qt::Key_Return);
        };
        a.dialogs.frmWelcome(a.game);
        EXPECT_FALSE(a.game.settings.ShowDialog);
        EXPECT_NE(a.game.settings.ShowSplash, checkedBefore) << "a change of the box replaces what was chosen";
    }
}

TEST(Splash, EndsOnce) {
    void (*const ends[])(QWidget&) = {[](QWidget&) {},  // by itself
                                      [](QWidget& splash) { QTest::keyClick(&splash, Qt::Key_Space); },
                                      [](QWidget& splash) { QTest::mouseClick(&splash, Qt::LeftButton); },
                                      [](QWidget& splash) { splash.close(); }};
    for (const auto& end : ends) {
        Around a;
        int tables = 0;
        a.dialogs.SetShowMainWindow([&] { ++tables; });
        QElapsedTimer clock;
        clock.start();
        a.dialogs.frmSplash(a.game);
        QWidget* splash = Shown("frmSplash");
        ASSERT_TRUE(splash && tables == 0);
        EXPECT_EQ(splash->size(), QSize(378, 210));
        EXPECT_TRUE(splash->windowFlags() & Qt::FramelessWindowHint &&
                    splash->windowFlags() & Qt::WindowStaysOnTopHint);
        const QSize screen = splash->screen()->size();
        EXPECT_EQ(splash->pos(), QPoint(qRound((screen.width() * 15 - 378) / 3 / 15.0),
                                        qRound((screen.height() * 15 - 210 * 16) / 2 / 15.0)));
        end(*splash);
        EXPECT_EQ(tables, &end == ends ? 0 : 1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return tables == 1; }));
        EXPECT_TRUE(&end != ends || clock.elapsed() >= 599) << clock.elapsed();
        EXPECT_TRUE(splash->isHidden());
        QTest::qWait(700);
        a.dialogs.UnloadSplash();
        EXPECT_EQ(tables, 1);
    }
}

TEST(About, DisablesTheTableUntilItHasGone) {
    void (*const ends[])(Around&, QWidget&) = {
        [](Around&, QWidget& about) { In(about, "cmdClose").click(); },
        [](Around&, QWidget& about) { QTest::keyClick(&about, Qt::Key_Return); },
        [](Around&, QWidget& about) { QTest::keyClick(&about, Qt::Key_Escape); },
        [](Around&, QWidget& about) { about.close(); },
        [](Around& a, QWidget&) { a.windows.reset(); },  // as at the end of the process
        [](Around& a, QWidget&) {
            a.dialogs.frmAbout(a.game);
            EXPECT_FALSE(a.main.isEnabled());
            Shown("frmAbout")->close();
        },
    };
    for (const auto& end : ends) {
        Around a;
        a.dialogs.frmAbout(a.game);
        QWidget* about = Shown("frmAbout");
        ASSERT_TRUE(about && QTest::qWaitForWindowActive(about));
        EXPECT_TRUE(!a.main.isEnabled() && about->isEnabled() && !about->isModal());
        EXPECT_EQ(about->windowTitle(), "About LuckyCup 2.2.2");
        EXPECT_EQ(about->size(), QSize(330, 352));
        EXPECT_LE((about->geometry().center() - a.main.geometry().center()).manhattanLength(), 2);
        ExpectTexts(*about, {{"lblTitle", "L u c k y  C u p"},
                             {"lblVersion", "Version 2.3"},
                             {"cmdClose", "&Close"},
                             {"Label1", "Web site:"},
                             {"Label2", "E-Mail:"},
                             {"lblWebSite", webSite},
                             {"lblemail", contactAddress}});
        ExpectLinks(*about, a.shell);
        end(a, *about);
        EXPECT_TRUE(a.main.isEnabled() && !Shown("frmAbout"));
    }
}

double Luminance(const QColor& colour) {
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

template <typename Visit>
void ForEachPart(const QTextDocument& text, Visit visit) {
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) visit(part.fragment());
}

// The text without its pictures and blanks.
QString Letters(QString text) { return text.remove(QRegularExpression("[\\s\\x{A0}\\x{FFFC}]")); }

int ExpectPictures(const QTextDocument& text) {
    int pictures = 0;
    ForEachPart(text, [&](const QTextFragment& part) {
        const QTextImageFormat image = part.charFormat().toImageFormat();
        if (!image.isValid()) return;
        ++pictures;
        EXPECT_FALSE(text.resource(QTextDocument::ImageResource, image.name()).value<QPixmap>().isNull())
            << image.name().toStdString();
    });
    return pictures;
}

TEST(Guide, StandsBesideTheTable) {
    Around a;
    a.dialogs.frmQuickStart(a.game);
    QWidget* guide = Shown("frmQuickStart");
    ASSERT_TRUE(guide);
    EXPECT_TRUE(!guide->isModal() && guide->windowTitle() == "Quick Start" && guide->size() == QSize(647, 402));
    EXPECT_LE((guide->geometry().center() - a.main.geometry().center()).manhattanLength(), 2);
    const auto& view = In<QTextBrowser>(*guide, "RichTextBox1");
    const QString text = view.toPlainText();
    EXPECT_EQ(QCryptographicHash::hash(Letters(text).toUtf8(), QCryptographicHash::Sha1).toHex(),
              "d15d0fc431d68c6f8c540afbcd4b7a332067e582")
        << "the wording has changed";
    EXPECT_EQ(ExpectPictures(*view.document()), 1);
    const double ground = Luminance(QColor(0, 51, 102));
    EXPECT_EQ(view.palette().color(QPalette::Base), QColor(0, 51, 102));
    ForEachPart(*view.document(), [&](const QTextFragment& part) {
        const QBrush own = part.charFormat().foreground();
        const QColor ink = own == Qt::NoBrush ? view.palette().color(QPalette::Text) : own.color();
        EXPECT_GE((Luminance(ink) + 0.05) / (ground + 0.05), 7) << part.text().toStdString();
    });
    a.dialogs.frmQuickStart(a.game);
    EXPECT_EQ(Shown("frmQuickStart"), guide) << "the open one comes to the front";
    In(*guide, "cmdOK").click();
    EXPECT_FALSE(Shown("frmQuickStart"));
    a.dialogs.frmQuickStart(a.game);
    EXPECT_TRUE(Shown("frmQuickStart"));
    a.dialogs.UnloadQuickStart();
    EXPECT_FALSE(Shown("frmQuickStart"));
}

QString ReadPdf(const QStringList& arguments) {
    QProcess reader;
    reader.start("pdftotext", arguments + QStringList("-"));
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
}

QString PdfText(const QString& file) {
    return Letters(ReadPdf({file}).remove(QRegularExpression("\\n\\s*\\d+\\s*\\f")));  // and no page numbers
}

// In points.
double PrintedHeight(const QString& file, const QString& word) {
    const QRegularExpression place("yMin=\"([\\d.]+)\" xMax=\"[\\d.]+\" yMax=\"([\\d.]+)\">" + word + '<');
    const auto match = place.match(ReadPdf({"-bbox", file}));
    return match.captured(2).toDouble() - match.captured(1).toDouble();
}

TEST(Guide, PrintsToAFileWhereThereIsNoPrinter) {
    const QTemporaryDir folder;
    Around a;
    const QString file = folder.filePath("guide.pdf");
    a.dialogs.frmQuickStart(a.game);
    auto& view = In<QTextBrowser>(*Shown("frmQuickStart"), "RichTextBox1");
    QString wanted = file;
    a.visitors["QPrintDialog"] = [&](QWidget& dialog) {
        In<QLineEdit>(dialog, "filename").setText(wanted);
        if (wanted.isEmpty())
            dialog.close();
        else
            dynamic_cast<QDialog&>(dialog).accept();
    };
    const auto print = [&](const QString& to) {
        wanted = to;
        a.visited.clear();
        In(*Shown("frmQuickStart"), "cmdPrint").click();
        return a.visited;
    };
    EXPECT_EQ(print(file), "QPrintDialog ");
    EXPECT_EQ(PdfText(file), Letters(view.toPlainText()));
    EXPECT_NEAR(PrintedHeight(file, "Roll"), 12, 3);
    EXPECT_EQ(print(""), "QPrintDialog QMessageBox ") << "cancelled";
    view.find("Free Column");
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Free Column");
    print(folder.filePath("words.pdf"));
    EXPECT_EQ(PdfText(folder.filePath("words.pdf")), "FreeColumn");
    EXPECT_EQ(print("/proc/guide.pdf"), "QPrintDialog QMessageBox ") << "cannot be written";
    EXPECT_TRUE(Shown("frmQuickStart"));
}

struct Help {
    explicit Help(const QByteArray& text) {
        if (text.isNull()) return;
        QFile file(folder.filePath("LCHelp23.hlp"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    QTemporaryDir folder;
    Art art;
    DesktopShell shell{folder.path().toStdString() + '/', "/where/the <scores> lie", art};
};

QByteArray HelpText() {
    QFile file(HELP_FILE);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(Help, ShowsNothingOfAFileThatIsNotWhole) {
    const QByteArray whole = HelpText();
    for (const QByteArray& text : {QByteArray(), QByteArray(""), whole.left(whole.size() / 2), whole + '\xFF'}) {
        Help help(text);
        help.shell.ShowHelpContents();
        EXPECT_FALSE(Shown("Help"));
    }
}

TEST(Help, TellsEverythingAndItsLinksLead) {
    Help help(HelpText());
    help.shell.ShowHelpContents();
    QWidget* window = Shown("Help");
    ASSERT_TRUE(window && !window->isModal());
    help.shell.ShowHelpContents();
    EXPECT_EQ(Shown("Help"), window);
    auto& view = In<QTextBrowser>(*window, "text");
    const QString text = view.toPlainText();
    for (const char* name : rowNames) EXPECT_TRUE(text.contains(name)) << name;
    for (const char* word : {"Down", "Up", "Free", "Announce", "/where/the <scores> lie"})
        EXPECT_TRUE(text.contains(word)) << word;
    for (const char* key : {"Enter", "Space", "F1", "F2", "Ctrl+O", "Ctrl+H", "Ctrl+X"})
        EXPECT_TRUE(text.contains(QRegularExpression(QString("\\b%1\\b").arg(QRegularExpression::escape(key))))) << key;
    EXPECT_GT(ExpectPictures(*view.document()), 200);
    QStringList links, anchors;
    ForEachPart(*view.document(), [&](const QTextFragment& part) {
        anchors << part.charFormat().anchorNames();
        if (!part.charFormat().anchorHref().isEmpty()) links << part.charFormat().anchorHref().mid(1);
    });
    EXPECT_GT(links.size(), 20);
    auto& contents = In<QTreeWidget>(*window, "contents");
    int entries = 0;
    for (QTreeWidgetItemIterator entry(&contents); *entry; ++entry, ++entries)
        links << (*entry)->data(0, Qt::UserRole).toString();
    EXPECT_GT(entries, 40);
    for (const QString& link : links) EXPECT_TRUE(anchors.contains(link)) << link.toStdString();
    help.shell.CloseHelp();
    EXPECT_FALSE(Shown("Help"));
}

TEST(Help, IsReadByMouseAndKeys) {
    Help help(HelpText());
    help.shell.ShowHelpContents();
    QWidget& window = *Shown("Help");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto& view = In<QTextBrowser>(window, "text");
    const auto firstShown = [&] { return view.cursorForPosition({20, 5}).block().text(); };
    auto& contents = In<QTreeWidget>(window, "contents");
    const auto undo = contents.findItems("Undo and redo", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(undo.size(), 1);
    contents.scrollToItem(undo[0]);
    EXPECT_FALSE(In(window, "back").isEnabled());
    QTest::mouseClick(contents.viewport(), Qt::LeftButton, {}, contents.visualItemRect(undo[0]).center());
    EXPECT_EQ(firstShown(), "Undo and redo");
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(firstShown(), "Welcome to Lucky Cup");
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto& find = In<QLineEdit>(window, "find");
    ASSERT_TRUE(find.hasFocus());
    QTest::keyClicks(&find, "fanfare");
    std::vector<int> found;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(&find, i % 2 ? Qt::Key_F3 : Qt::Key_Return);
        EXPECT_EQ(view.textCursor().selectedText().toLower(), "fanfare");
        found.push_back(view.textCursor().position());
    }
    EXPECT_TRUE(found[0] < found[1] && std::ranges::count(found, found[0]) > 1) << "and round again";
    find.setText("no such word");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(view.textCursor().position(), found.back());
    EXPECT_EQ(find.palette().color(QPalette::Text), QColor(Qt::red));
    const double height = view.document()->size().height();
    QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(view.document()->size().height(), height);
    for (int i = 0; i < 9; ++i) QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(view.document()->size().height(), height);
    EXPECT_GE(view.font().pixelSize(), 9);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(Shown("Help"));
}

}  // namespace
