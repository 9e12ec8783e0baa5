#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

#include "app/desktop_shell.h"
#include "dialogs/window/qt_dialogs.h"
#include "script/headless_table.h"

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
            visitors.value(name, &QWidget::close)(*modal);
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

void ExpectTexts(QWidget& window, const QString& name) {
    QFile file(CASES "window_texts.txt");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    for (QString line; !file.atEnd();) {
        line = QString(file.readLine()).trimmed();
        if (line.section(' ', 0, 0) != name) continue;
        auto& widget = In<QWidget>(window, line.section(' ', 1, 1).toLatin1());
        const QString text = line.section(' ', 2);
        EXPECT_EQ(widget.property("text").toString(), text);
        const QString plain = text.contains(' ') ? text : QString(text).remove('&');
        EXPECT_LE(widget.fontMetrics().horizontalAdvance(plain), widget.width()) << plain.toStdString();
        EXPECT_TRUE(window.rect().contains(widget.geometry())) << line.toStdString();
    }
}

TEST(Welcome, IsAsTold) {
    Around a;
    a.game.session.OpenedFromGame = false;
    a.visitors["frmWelcome"] = [&](QWidget& window) {
        EXPECT_EQ(window.size(), QSize(407, 351));
        ExpectTexts(window, "frmWelcome");
        for (const char* name : {"lblWebSite", "lblemail"}) {
            auto& link = In(window, name);
            QTest::keyClick(&link, Qt::Key_Return);
            QTest::mouseClick(&link, Qt::LeftButton);
            EXPECT_EQ(std::exchange(a.shell.opened, {}), std::vector(2, link.toolTip().toStdString()));
        }
        QTest::keyClick(&window, Qt::Key_F1);
        EXPECT_EQ(a.shell.helps, 1);
        QTest::keyClick(&window, Qt::Key_Q, Qt::AltModifier);
        QTest::qWait(300);
        auto& box = In(window, "Check1");
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(6, 8));
        EXPECT_TRUE(a.game.settings.ShowSplash && !a.game.settings.ShowDialog);
        box.click();
        In(window, "cmdOptions").click();
        EXPECT_TRUE(box.isChecked());
        window.close();
    };
    a.visitors["frmOptions"] = [&](QWidget& options) {
        In(options, "optShowNone").click();
        QTest::keyClick(&options, Qt::Key_Return);
    };
    a.visitors["frmQuickStart"] = [&](QWidget& guide) {
        EXPECT_TRUE(guide.isModal());
        QTest::keyClick(&guide, Qt::Key_Return);
    };
    a.dialogs.frmWelcome(a.game);
    EXPECT_EQ(a.visited, "frmWelcome frmQuickStart frmOptions ");
    EXPECT_EQ(a.shell.helps, 0) << "the help closes with the window";
}

TEST(Welcome, EndsWithPlayOrExit) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        Around a;
        a.visitors["frmWelcome"] = [key](QWidget& window) { QTest::keyClick(&window, key); };
        a.dialogs.frmWelcome(a.game);
        EXPECT_EQ(a.game.session.PlayPressed, key == Qt::Key_Return);
    }
}

TEST(Splash, EndsOnce) {
    for (const bool pressed : {false, true}) {
        Around a;
        int tables = 0;
        a.dialogs.SetShowMainWindow([&] { ++tables; });
        a.dialogs.frmSplash(a.game);
        QWidget* splash = Shown("frmSplash");
        ASSERT_TRUE(splash && splash->size() == QSize(378, 210));
        if (pressed) QTest::keyClick(splash, Qt::Key_Space);
        EXPECT_EQ(tables, pressed ? 1 : 0);
        QTest::qWait(700);
        EXPECT_TRUE(splash->isHidden());
        a.dialogs.UnloadSplash();
        EXPECT_EQ(tables, 1);
    }
}

TEST(About, DisablesTheTableUntilItHasGone) {
    for (const bool processEnds : {false, true}) {
        Around a;
        a.dialogs.frmAbout(a.game);
        QWidget* about = Shown("frmAbout");
        ASSERT_TRUE(about && QTest::qWaitForWindowActive(about));
        EXPECT_TRUE(!a.main.isEnabled() && about->isEnabled() && !about->isModal());
        EXPECT_EQ(about->size(), QSize(330, 352));
        ExpectTexts(*about, "frmAbout");
        a.dialogs.frmAbout(a.game);
        EXPECT_FALSE(a.main.isEnabled());
        if (processEnds)
            a.windows.reset();
        else
            QTest::keyClick(Shown("frmAbout"), Qt::Key_Escape);
        EXPECT_TRUE(a.main.isEnabled() && !Shown("frmAbout"));
    }
}

// The letters that a file was printed with, without blanks, pictures and the numbers of pages.
QString Letters(QString text) { return text.remove(QRegularExpression("\\n\\s*\\d+\\s*\\f|[\\s\\x{A0}\\x{FFFC}]")); }

QString PdfText(const QString& file) {
    QProcess reader;
    reader.start("pdftotext", {file, "-"});
    reader.waitForFinished();
    return Letters(QString::fromUtf8(reader.readAllStandardOutput()));
}

TEST(Guide, PrintsToAFileWhereThereIsNoPrinter) {
    const QTemporaryDir folder;
    Around a;
    a.dialogs.frmQuickStart(a.game);
    QWidget* guide = Shown("frmQuickStart");
    ASSERT_TRUE(guide && !guide->isModal());
    a.dialogs.frmQuickStart(a.game);
    EXPECT_EQ(Shown("frmQuickStart"), guide) << "the open one comes to the front";
    auto& view = In<QTextBrowser>(*guide, "RichTextBox1");
    const auto print = [&](const QString& to) {
        a.visitors["QPrintDialog"] = [to](QWidget& dialog) {
            In<QLineEdit>(dialog, "filename").setText(to);
            if (to.isEmpty())
                dialog.close();
            else
                dynamic_cast<QDialog&>(dialog).accept();
        };
        a.visited.clear();
        In(*guide, "cmdPrint").click();
        return a.visited;
    };
    const QString file = folder.filePath("guide.pdf");
    EXPECT_EQ(print(file), "QPrintDialog ");
    EXPECT_EQ(PdfText(file), Letters(view.toPlainText()));
    EXPECT_EQ(print(""), "QPrintDialog QMessageBox ") << "cancelled";
    view.find("Free Column");
    print(file);
    EXPECT_EQ(PdfText(file), "FreeColumn");
    EXPECT_EQ(print("/proc/guide.pdf"), "QPrintDialog QMessageBox ") << "cannot be written";
    a.dialogs.UnloadQuickStart();
    EXPECT_FALSE(Shown("frmQuickStart"));
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

TEST(Help, ItsLinksLeadAndKeysFind) {
    Help help(HelpText());
    help.shell.ShowHelpContents();
    QWidget& window = *Shown("Help");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto& view = In<QTextBrowser>(window, "text");
    const QTextDocument& text = *view.document();
    EXPECT_TRUE(text.toPlainText().contains("/where/the <scores> lie"));
    QStringList links, anchors;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            anchors << format.anchorNames();
            if (!format.anchorHref().isEmpty()) links << format.anchorHref().mid(1);
            const QUrl picture = format.toImageFormat().name();
            EXPECT_TRUE(picture.isEmpty() || !text.resource(QTextDocument::ImageResource, picture).isNull());
        }
    auto& contents = In<QTreeWidget>(window, "contents");
    for (QTreeWidgetItemIterator entry(&contents); *entry; ++entry) links << (*entry)->data(0, Qt::UserRole).toString();
    EXPECT_GT(links.size(), 60);
    for (const QString& link : links) EXPECT_TRUE(anchors.contains(link)) << link.toStdString();
    const auto firstShown = [&] { return view.cursorForPosition({20, 5}).block().text(); };
    const auto undo = contents.findItems("Undo and redo", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(undo.size(), 1);
    contents.scrollToItem(undo[0]);
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
        found.push_back(view.textCursor().position());
    }
    EXPECT_TRUE(found[0] < found[1] && std::ranges::count(found, found[0]) > 1) << "and round again";
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(Shown("Help"));
}

}  // namespace
