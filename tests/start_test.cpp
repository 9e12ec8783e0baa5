#include "core/start.h"

#include <algorithm>

#include "dialogs/welcome_form.h"
#include "table/main_window.h"

namespace {

// What a player does in frmWelcome: P play, X leave, c and u change the check box, and the options closed with OK and
// "None" (n), "Splash Screen" (s), "Dialog Screen" (d), or cancelled (x).
struct FirstWindows final : HeadlessDialogs {
    using HeadlessDialogs::HeadlessDialogs;

    EventLog windows;
    std::string visit;

    void frmWelcome(Game& game) override {
        windows.push_back("welcome");
        WelcomeForm form;
        for (const char act : visit) {
            if (act == 'P') cmdPlay_Click(game);
            if (act == 'c' || act == 'u') Check1_Change(game, form, act == 'c');
            const auto chosen = std::string("nsdx").find(act);
            if (chosen == std::string::npos) continue;
            answers = {act == 'x' ? HeadlessAnswer::Cancel : HeadlessAnswer::Ok};
            changeOptions = [chosen](Game&, OptionsForm& options) {
                options.showAtStartUp = chosen < 3 ? static_cast<StartUpWindow>(chosen) : StartUpWindow::None;
            };
            cmdOptions_Click(game, form);
        }
        EXPECT_EQ(form.Check1, !game.settings.ShowDialog) << visit;
        EXPECT_FALSE(game.session.OpenedFromGame);
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
    for (const bool splash : {false, true}) {
        FirstStart first({.ShowDialog = false, .ShowSplash = splash});
        EXPECT_TRUE(Start(first.game));
        EXPECT_EQ(first.Log(), splash ? "save,splash," : "save,table,");
    }
}

TEST(Start, SavesWhatWasChangedInTheFirstWindow) {
    struct {
        const char* visit;
        bool saved, dialog, splash;
    } const cases[] = {{"X", false, true, false}, {"xP", false, true, false},  {"cuX", true, true, false},
                       {"cP", true, false, true}, {"cnP", true, false, false}, {"cxX", false, false, true},
                       {"ndP", true, true, false}};
    for (const auto& [visit, saved, dialog, splash] : cases) {
        FirstStart first({});
        first.dialogs.visit = visit;
        const bool plays = first.dialogs.visit.back() == 'P';
        EXPECT_EQ(Start(first.game), plays);
        EXPECT_EQ(first.Log(),
                  std::string("save,welcome,close help,") + (saved ? "save," : "") + (plays ? "table," : ""))
            << visit;
        const GameSettings kept = first.store.LoadSettings();
        EXPECT_TRUE(kept.ShowDialog == (!saved || dialog) && kept.ShowSplash == (saved && splash)) << visit;
    }
}

TEST(Unload, ClosesEverythingInItsOrder) {
    FirstStart first({});
    first.game.settings = {.ConfirmOnExit = true, .BGMusicEnabled = true};
    first.dialogs.windows.clear();
    first.dialogs.answers = {HeadlessAnswer::Cancel};
    EXPECT_FALSE(Form_QueryUnload(first.game));
    EXPECT_EQ(first.Log(), "");
    EXPECT_TRUE(Form_QueryUnload(first.game));
    EXPECT_EQ(first.Log(), "save,unload splash,close help,unload guide,");
    EXPECT_EQ(std::ranges::count(first.t.log, "media close myMP3"), 1);
}

}  // namespace
