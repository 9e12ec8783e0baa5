#include "core/start.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "dialogs/welcome_form.h"
#include "script/headless_table.h"
#include "table/main_window.h"

namespace {

// The windows of which one comes first, or closes at the end. The player of the first one plays or leaves.
struct FirstWindows final : HeadlessDialogs {
    using HeadlessDialogs::HeadlessDialogs;

    EventLog windows;
    bool changes = false, plays = false;

    void frmWelcome(Game& game) override {
        windows.push_back("welcome");
        WelcomeForm form;
        if (changes) Check1_Change(game, form, true);
        if (plays) cmdPlay_Click(game);
        frmWelcome_Unload(game);
    }
    void frmSplash(Game&) override { windows.push_back("splash"); }
    void frmLuckyCup(Game&) override { windows.push_back("table"); }
    void UnloadSplash() override { windows.push_back("unload splash"); }
    void UnloadQuickStart() override { windows.push_back("unload guide"); }
};

struct NotingShell final : SilentShell {
    EventLog& log;
    explicit NotingShell(EventLog& events) : log(events) {}
    void CloseHelp() override { log.push_back("close help"); }
};

struct FirstStart {
    explicit FirstStart(const GameSettings& stored) { store.SaveSettings(stored); }

    std::string Log() const {
        std::string all;
        for (const std::string& entry : dialogs.windows) all += entry + ',';
        return all;
    }

    HeadlessTable t;
    FirstWindows dialogs{t.log};
    NotingShell shell{dialogs.windows};
    HeadlessStore store{dialogs.windows};
    Game game{Ports{t.view, t.timers, t.clock, t.random, t.effects, t.media, dialogs, t.scores, shell, store, t.parts}};
};

TEST(Start, OpensTheWindowThatTheSettingsChoose) {
    for (unsigned bits = 0; bits < 16; ++bits) {
        const bool dialog = bits & 1U, splash = bits & 2U, changes = bits & 4U, plays = bits & 8U;
        FirstStart first({.ShowDialog = dialog, .ShowSplash = splash, .BGMusicVolume = 7});
        first.dialogs.windows.clear();
        std::tie(first.dialogs.changes, first.dialogs.plays) = std::tuple(changes, plays);
        EXPECT_EQ(Start(first.game), !dialog || plays);
        EXPECT_EQ(first.game.settings.BGMusicVolume, 7) << "loaded";
        EXPECT_EQ(first.Log(),
                  !dialog ? splash ? "splash," : "table,"
                          : std::string("welcome,close help,") + (changes ? "save," : "") + (plays ? "table," : ""));
        EXPECT_FALSE(first.game.session.SettingsChanged);
        EXPECT_EQ(first.store.LoadSettings().ShowDialog, dialog && !changes);
    }
}

TEST(Unload, ClosesEverythingInItsOrder) {
    for (const bool music : {false, true}) {
        FirstStart first({});
        first.game.settings = {.ConfirmOnExit = music, .BGMusicEnabled = music};
        first.dialogs.windows.clear();
        first.dialogs.answers = {HeadlessAnswer::Cancel};
        EXPECT_TRUE(!music || !Form_QueryUnload(first.game)) << "cancelled";
        EXPECT_EQ(first.Log(), "");
        EXPECT_TRUE(Form_QueryUnload(first.game));
        EXPECT_EQ(first.Log(), "save,unload splash,close help,unload guide,");
        EXPECT_EQ(std::ranges::count(first.t.log, "media close myMP3"), music ? 1 : 0);
        EXPECT_EQ(first.t.log.back(), "media close song");
    }
}

}  // namespace
