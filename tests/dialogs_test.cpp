#include "tests/visits.h"

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

// What the scripts of the whole window do not touch: its keys, and that the volume is heard at once.
TEST(Options, EndByTheirKeys) {
    Visits t(VariantOf(5));
    t.game.settings.BGMusicEnabled = true;
    t.describe = [&](const QWidget& front) {
        const auto* bar = front.findChild<QAbstractButton*>("chkShowStatusBar");
        const GameSettings& now = t.game.settings;
        return QString("%1 %2%3 %4 %5")
            .arg(now.NumberOfPlayers)
            .arg(now.ShowSplash ? "S" : "-", bar && !bar->isEnabled() ? "B" : "-")
            .arg(now.BGMusicVolume)
            .arg(QString::fromStdString(now.Player2));
    };
    t.Play(CasesOf("visits.txt", "options"), {{"open", [&] { t.dialogs.frmOptions(t.game); }},
                                              {"look", [] { ExpectPlan(*Shown("frmOptions"), "frmOptions"); }}});
    EXPECT_EQ(t.game.settings.NumberOfColumns, 1) << "cancelled";
}

}  // namespace
