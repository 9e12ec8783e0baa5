#include <QLineEdit>
#include <QSlider>

#include "tests/window_table.h"

namespace {

// Fills the board but for its last box, and that one after one roll.
void FillToTheLastBox(WindowTable& t) {
    for (int row = 0; row < rowCount; ++row) {
        t.Key(Qt::Key_Return);
        t.Click("cmdRand", row);
    }
}

TEST(EndGame, HasNoWayOutButItsButtons) {
    WindowTable t(VariantOf(5));
    int shown = 0;
    t.answer = [&](QWidget& modal) {
        QTest::keyClick(&modal, Qt::Key_Escape);
        if (modal.objectName() == "frmScores2") return;
        EXPECT_FALSE(modal.close());
        ASSERT_TRUE(modal.isVisible());
        EXPECT_FALSE(modal.windowFlags() & Qt::WindowCloseButtonHint);
        EXPECT_EQ(modal.size(), QSize(245, 68));
        EXPECT_NEAR(modal.geometry().center().y() - t.window.geometry().center().y(), Pixels(2200), 2);
        EXPECT_TRUE(t.game.session.EndGameSeen);
        QTest::keyClick(&modal, ++shown == 1 ? Qt::Key_U : Qt::Key_F, Qt::AltModifier);
    };
    FillToTheLastBox(t);
    EXPECT_EQ(t.game.session.BoxesFilled, 12);
    EXPECT_FALSE(t.game.session.EndGameFinish);
    t.Click("cmdRand", rowLuckyCup);
    EXPECT_EQ(shown, 2);
    EXPECT_TRUE(t.game.session.EndGameFinish && t.game.session.GameOverShown);
}

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

TEST(Options, ShowAndStoreTheSettings) {
    WindowTable t(VariantOf(5));
    t.game.settings.ShowDialog = false;
    t.game.settings.BGMusicEnabled = true;
    t.game.settings.BGMusicVolume = 120;
    VisitOptions(t, [&](QWidget& dialog) {
        EXPECT_EQ(dialog.size(), QSize(379, 517));
        for (const char* name : {"optYahtzee", "opt5Dice", "opt1Player", "optShowNone", "chkShowStatusBar",
                                 "chkQuitGame", "chkConfirmExit"})
            EXPECT_TRUE(dialog.findChild<QAbstractButton*>(name)->isChecked()) << name;
        auto* slider = dialog.findChild<QSlider*>("sldVolume");
        EXPECT_EQ(slider->value(), 120);
        slider->setValue(900);
        EXPECT_EQ(t.game.settings.BGMusicVolume, 900);
        for (const char* name : {"optYamb", "opt6Dice", "opt2Players", "optShowSplash", "chkConfirmExit"})
            Press(dialog, name);
        EXPECT_FALSE(dialog.findChild<QWidget*>("chkShowStatusBar")->isEnabled());
        auto* name2 = dialog.findChild<QLineEdit*>("txtName2");
        EXPECT_TRUE(name2->isEnabled());
        name2->setText(QString::fromUtf8("Ж & <b>"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    GameSettings wanted = VariantOf(2);
    wanted.ShowDialog = false;
    wanted.ShowSplash = true;
    wanted.ConfirmOnExit = false;
    wanted.Player2 = "Ж & <b>";
    wanted.BGMusicEnabled = true;
    wanted.BGMusicVolume = 900;
    EXPECT_EQ(t.game.settings, wanted);

    VisitOptions(t, [&](QWidget& dialog) {
        Press(dialog, "optYahtzee");
        dialog.findChild<QSlider*>("sldVolume")->setValue(3);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(t.game.settings, wanted);
    EXPECT_FALSE(t.game.session.SettingsChanged);
    VisitOptions(t, [&](QWidget& dialog) {
        dialog.findChild<QSlider*>("sldVolume")->setValue(3);
        dialog.close();  // is not Cancel
    });
    EXPECT_EQ(t.game.settings.BGMusicVolume, 3);
}

}  // namespace
