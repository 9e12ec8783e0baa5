#include "dialogs/options_form.h"
#include "table/commands.h"
#include "tests/state_differences.h"

namespace {

TEST(Options, EachControlShowsAndStoresItsSetting) {
    for (unsigned bits = 0; bits < 512; ++bits) {
        SCOPED_TRACE(bits);
        const auto bit = [&](unsigned n) { return (bits >> n & 1U) != 0; };
        GameSettings settings = Variant(bits);
        settings.Player1 = "";
        settings.Player2 = " Bo ";
        settings.BGMusicVolume = 7;
        settings.ShowDialog = bit(3);
        settings.ShowSplash = bit(4);
        settings.ShowStatusBar = bit(5);
        settings.ConfirmOnExit = bit(6);
        settings.ConfirmQuitGame = bit(7);
        settings.BGMusicEnabled = bit(8);
        HeadlessTable table(settings);
        const OptionsForm form = frmOptions_Load(table.game);
        EXPECT_TRUE(form.opt5Dice == bit(0) && form.opt1Player != bit(1) && form.optYahtzee == bit(2));
        EXPECT_TRUE(form.txtName1.empty() && form.txtName2 == " Bo " && form.txtName2Enabled == bit(1));
        EXPECT_EQ(form.showAtStartUp, bit(3)   ? StartUpWindow::Dialog
                                      : bit(4) ? StartUpWindow::Splash
                                               : StartUpWindow::None);
        EXPECT_TRUE(form.chkShowStatusBar == (bit(5) || bit(1)) && form.chkShowStatusBarEnabled != bit(1));
        EXPECT_TRUE(form.chkConfirmExit == bit(6) && form.chkQuitGame == bit(7) &&
                    form.sldVolume == (bit(8) ? 7 : 500));
        table.game.settings = {.BGMusicEnabled = bit(8), .BGMusicVolume = 7};
        OptionsOk(table.game, form);
        settings.ShowSplash = bit(4) && !bit(3);
        settings.ShowStatusBar = bit(5) || bit(1);
        EXPECT_EQ(table.game.settings, settings);
        EXPECT_TRUE(table.game.session.SettingsChanged && table.game.table.title.empty()) << "not opened from the game";
    }
}

using enum HeadlessAnswer;

TEST(Options, InTheRunningGame) {
    const std::string ok = "dialog frmOptions|ok;", cancel = "dialog frmOptions|cancel;";
    const EventCase cases[] = {
        {"options;roll", "options Player1=Ann", {Ok}, ok, "panels settings.Player1 showBoard.caption title "},
        {"options", "options BGMusicVolume=1 Player1=Ann", {Cancel}, cancel, "session.SettingsChanged "},
        {"options", "options BGMusicVolume=1", {Ok}, ok, "settings.BGMusicVolume "},
        {"options", "options Player2=Bo", {Ok}, ok, ""},
        {"options ShowStatusBar=False",
         "options NumberOfPlayers=2 ShowStatusBar=False NumberOfPlayers=1",
         {Ok},
         ok,
         "height settings.ShowStatusBar statusBar "},
        {"options NumberOfPlayers=2 Player1=Ann Player2=Bo;roll;box 3 6",
         "options Player1=Eve Player2=Bob",
         {Ok},
         ok,
         "panels settings.Player1 settings.Player2 showBoard.caption title "},
    };
    for (const EventCase& c : cases) Check(c);
    PlayedTable t({.NumberOfPlayers = 2, .Player1 = "Ann", .Player2 = "Bo"});
    t.Do("roll;box 3 6;next;options Player1=Eve Player2=Bob");
    EXPECT_EQ(t.game.table.Panel(1).text + t.game.table.title + t.game.table.showBoard.caption,
              "BobLucky Cup - Bob    Show      Eve's  Board");
    t.Do("options Player1=Bob;options Player1=Eve");
    EXPECT_EQ(t.game.table.Panel(1).text + t.game.table.title, "EveLucky Cup - Eve") << "with equal names";
}

TEST(Commands, Choices) {
    const EventCase cases[] = {
        {"state", "hints request", {}, "", "hintButton session.HintsOn settings.hintAllways tipColumn "},
        {"hints request",
         "hints always",
         {},
         "effect hint;",
         "hintButton session.HintsOn settings.hintAllways tipColumn "},
        {"hints request;roll",
         "hints always",
         {},
         "effect hint;",
         "hintButton session.HintsOn session.RowScore settings.hintAllways tipColumn tips "},
        {"hints request", "hint", {}, "", ""},
        {"hints request;roll 1 2 3 4 5 6",
         "hint",
         {},
         "effect hint;",
         "session.HintsRequested session.MayHint session.RowScore tipColumn tips "},
        {"hints request;roll;hint", "hint", {}, "", ""},
        {"hints request;roll;hint;sounds off", "roll", {}, "", nullptr},
        {"state", "sounds off", {}, "", "session.SoundOn settings.SoundEnabled "},
        {"sounds off", "sounds on", {}, "", "session.SoundOn settings.SoundEnabled "},
        {"state", "music on", {}, "", "settings.BGMusicEnabled timers.Timer3 "},
        {"music on", "music off", {}, "media close myMP3;media close song;", "settings.BGMusicEnabled timers.Timer3 "},
    };
    for (const EventCase& c : cases) Check(c);
    PlayedTable t;
    for (const char* event : {"hints always", "sounds on", "music off", "hint"}) EXPECT_FALSE(t.Takes(event)) << event;
    t.Do("roll");
    tbHint_Click(t.game);
    EXPECT_FALSE(t.game.session.MayHint || t.game.session.HintsRequested);
    for (const bool on : {false, true}) {
        tbSound_Click(t.game);
        tbBGmusic_Click(t.game);
        EXPECT_TRUE(t.game.settings.SoundEnabled == on && t.game.settings.BGMusicEnabled != on);
    }
    t.Do("state");
    t.game.session.ShowScoreResult = true;
    mnuScores_Click(t.game);
    EXPECT_EQ(LogOf(t), "dialog frmScores2;");
}

}  // namespace
