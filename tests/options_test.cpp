#include "dialogs/options_form.h"
#include "tests/state_differences.h"

namespace {

TEST(Options, EachControlShowsAndStoresItsSetting) {
    for (unsigned bits = 0; bits < 512; ++bits) {
        const auto bit = [&](unsigned n) { return (bits >> n & 1U) != 0; };
        GameSettings settings = VariantOf(bits);
        std::tie(settings.Player1, settings.Player2, settings.BGMusicVolume) = std::tuple("", " Bo ", 7);
        bool* const flags[] = {&settings.ShowDialog,    &settings.ShowSplash,      &settings.ShowStatusBar,
                               &settings.ConfirmOnExit, &settings.ConfirmQuitGame, &settings.BGMusicEnabled};
        for (unsigned flag = 0; flag < 6; ++flag) *flags[flag] = bit(3 + flag);
        HeadlessTable table(settings);
        const OptionsForm form = frmOptions_Load(table.game);
        EXPECT_TRUE(form.opt5Dice == bit(0) && form.opt1Player != bit(1) && form.optYahtzee == bit(2));
        EXPECT_TRUE(form.txtName1.empty() && form.txtName2 == " Bo " && form.txtName2Enabled == bit(1));
        using enum StartUpWindow;
        EXPECT_EQ(form.showAtStartUp, bit(3) ? Dialog : bit(4) ? Splash : None);
        EXPECT_TRUE(form.chkShowStatusBar == (bit(5) || bit(1)) && form.chkShowStatusBarEnabled != bit(1));
        EXPECT_TRUE(form.chkConfirmExit == bit(6) && form.chkQuitGame == bit(7) &&
                    form.sldVolume == (bit(8) ? 7 : 500));
        table.game.settings = {.BGMusicEnabled = bit(8), .BGMusicVolume = 7};
        OptionsOk(table.game, form);
        settings.ShowSplash = bit(4) && !bit(3);
        settings.ShowStatusBar = bit(5) || bit(1);
        EXPECT_EQ(table.game.settings, settings);
        EXPECT_EQ(table.game.table.title, "") << "not opened from the game";
    }
}

// Those with a text share the bar.
TEST(Options, PanelsHaveTheWidthsOfOnePlayerOrOfTwo) {
    PlayedTable t;
    for (const bool two : {false, true}) {
        const std::array<int, 4> widths = two ? std::array{2000, 1, 1630, 1} : std::array{1, 2550, 1, 1230};
        for (std::size_t k = 0; k < widths.size(); ++k) EXPECT_TRUE(t.game.table.panels[k + 1].width == widths[k]) << k;
        t.Do("options NumberOfPlayers=2");
    }
}

}  // namespace
