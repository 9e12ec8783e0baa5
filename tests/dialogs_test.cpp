#include <QLineEdit>
#include <QSlider>

#include "tests/window_table.h"

namespace {

TEST(TheWinerIs, NamesTheWinner) {
    WindowTable t(VariantOf(7));
    t.game.settings.Player1 = "A  ";
    t.game.settings.Player2 = std::string(200, 'W');
    t.game.session.FinalScore1 = -5;
    t.answer = [&](QWidget& modal) {
        const auto text = [&](const char* name) { return modal.findChild<QLabel*>(name)->text(); };
        EXPECT_EQ(text("lblPlayer1"), "A's Total Score:");
        EXPECT_EQ(text("lblScore1"), "-5");
        EXPECT_TRUE(text("lblPlayer2").endsWith("Score:"));
        EXPECT_TRUE(text("lblWiner").startsWith("WWW") && text("lblWiner").endsWith("Wins!"));
        for (QLabel* label : modal.findChildren<QLabel*>())
            EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width());
        modal.findChild<QAbstractButton*>("cmdClose")->click();
    };
    t.dialogs.frmTheWinerIs(t.game);
}

// Opens Options, checks what it shows, does something to it and closes it.
void VisitOptions(WindowTable& t, const std::function<void(QWidget&)>& visit) {
    t.answer = visit;
    t.game.session.OpenedFromGame = true;
    t.dialogs.frmOptions(t.game);
}

void Press(QWidget& dialog, const char* button) { dialog.findChild<QAbstractButton*>(button)->click(); }

// What the scripts of the whole window do not touch.
TEST(Options, HaveTheirSizeAndEndByTheirKeys) {
    WindowTable t(VariantOf(5));
    t.game.settings.BGMusicEnabled = true;
    const auto setVolume = [](QWidget& dialog, int volume) { dialog.findChild<QSlider*>()->setValue(volume); };
    VisitOptions(t, [&](QWidget& dialog) {
        EXPECT_EQ(dialog.size(), QSize(379, 517));
        setVolume(dialog, 900);
        EXPECT_EQ(t.game.settings.BGMusicVolume, 900) << "is heard at once";
        for (const char* name : {"opt2Players", "optShowSplash"}) Press(dialog, name);
        EXPECT_FALSE(dialog.findChild<QWidget*>("chkShowStatusBar")->isEnabled());
        dialog.findChild<QLineEdit*>("txtName2")->setText(QString::fromUtf8("Ж & <b>"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const GameSettings wanted = t.game.settings;
    EXPECT_TRUE(wanted.ShowSplash && !wanted.ShowDialog && wanted.NumberOfPlayers == 2 && wanted.Player2 == "Ж & <b>");
    VisitOptions(t, [&](QWidget& dialog) {
        Press(dialog, "optYamb");
        setVolume(dialog, 3);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(t.game.settings, wanted);
    EXPECT_FALSE(t.game.session.SettingsChanged);
    VisitOptions(t, [&](QWidget& dialog) {
        setVolume(dialog, 3);
        dialog.close();  // is not Cancel
    });
    EXPECT_EQ(t.game.settings.BGMusicVolume, 3);
}

}  // namespace
