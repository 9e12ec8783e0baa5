#include "dialogs/options_form.h"
#include "table/commands.h"
#include "tests/state_differences.h"

namespace {

TEST(Options, EachControlShowsAndStoresItsSetting) {
    for (unsigned bits = 0; bits < 512; ++bits) {
        const auto bit = [&](unsigned n) { return (bits >> n & 1U) != 0; };
        GameSettings settings = Variant(bits);
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

TEST(Options, InTheRunningGame) {
    const std::string ok = "dialog frmOptions|ok", names = "showBoard.caption title ";
    ExpectEvent("options;roll", "options Player1=Ann", ok, "panels settings.Player1 " + names);
    ExpectEvent("options", "options BGMusicVolume=1 Player1=Ann NumberOfDice=4", "dialog frmOptions|cancel",
                "session.SettingsChanged ", {HeadlessAnswer::Cancel});
    ExpectEvent("options", "options BGMusicVolume=1 Player2=Bo", ok, "settings.BGMusicVolume ");
    ExpectEvent("options;roll", "options ShowStatusBar=False", ok, "height panels settings.ShowStatusBar statusBar ");
    ExpectEvent("options;roll;options ShowStatusBar=False", "options NumberOfPlayers=2 NumberOfPlayers=1", ok,
                "height settings.ShowStatusBar statusBar ");
    PlayedTable t({.NumberOfPlayers = 2, .Player1 = "Ann", .Player2 = "Bo"});
    const auto shown = [&] {
        return t.game.table.panels[1].text + '|' + t.game.table.title + '|' + t.game.table.showBoard.caption;
    };
    t.Do("roll;box 3 6;options Player1=Eve");
    EXPECT_EQ(shown(), "Eve|Lucky Cup - Eve|    Show      Eve's  Board");
    t.Do("next;options Player1=Ida Player2=Bob");
    EXPECT_EQ(shown(), "Bob|Lucky Cup - Bob|    Show      Ida's  Board");
    t.Do("options Player1=Bob;options Player1=Eve");
    EXPECT_EQ(shown(), "Eve|Lucky Cup - Eve|    Show      Eve's  Board") << "equal names";
}

TEST(Commands, OfTheChoices) {
    ExpectEvent("state", "hints request", "", "hintButton session.HintsOn settings.hintAllways tipColumn ");
    ExpectEvent("sounds off", "sounds on", "", "session.SoundOn settings.SoundEnabled ");
    ExpectEvent("state", "music on", "", "settings.BGMusicEnabled timers.Timer3 ");
    ExpectEvent("music on", "music off", "media close myMP3, media close song",
                "settings.BGMusicEnabled timers.Timer3 ");
    PlayedTable t;
    t.Do("roll");
    tbHint_Click(t.game);
    EXPECT_FALSE(t.game.session.MayHint || t.game.session.HintsRequested) << "hints are always on";
}

}  // namespace
