#include "core/start.h"

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

struct NotingMedia final : SilentMedia {
    EventLog& log;
    explicit NotingMedia(EventLog& events) : log(events) {}
    std::string Send(const std::string& command) override { return log.push_back(command), ""; }
};

struct FirstStart {
    explicit FirstStart(const GameSettings& stored) { store.SaveSettings(stored); }

    std::string Log() {
        std::string all;
        for (const std::string& entry : dialogs.windows) all += entry + ',';
        return all;
    }

    HeadlessTable t;
    FirstWindows dialogs{t.log};
    NotingShell shell{dialogs.windows};
    NotingMedia media{dialogs.windows};
    HeadlessStore store{dialogs.windows};
    Game game{Ports{t.view, t.timers, t.clock, t.random, t.effects, media, dialogs, t.scores, shell, store, t.parts}};
};

TEST(Start, OpensTheWindowThatTheSettingsChoose) {
    for (const char* visit : {"X", "P"}) {
        for (int bits = 0; bits < 4; ++bits) {
            FirstStart first({.ShowDialog = bits > 1, .ShowSplash = bits % 2 == 1, .BGMusicVolume = 7});
            first.dialogs.visit = visit;
            const bool stays = bits < 2 || *visit == 'P';
            EXPECT_EQ(Start(first.game), stays);
            EXPECT_EQ(first.game.settings.BGMusicVolume, 7);
            EXPECT_EQ(first.Log(), bits == 0   ? "save,table,"
                                   : bits == 1 ? "save,splash,"
                                   : stays     ? "save,welcome,close help,table,"
                                               : "save,welcome,close help,");
        }
    }
}

TEST(Start, SavesWhatWasChangedInTheFirstWindow) {
    struct {
        const char* visit;
        bool saved, dialog, splash;
    } const cases[] = {
        {"", false, true, false},   {"x", false, true, false},  {"c", true, false, true},  {"cu", true, true, false},
        {"cc", true, false, true},  {"d", true, true, false},   {"s", true, false, true},  {"n", true, false, true},
        {"cn", true, false, false}, {"cs", true, false, true},  {"cd", true, true, false}, {"cnu", true, true, false},
        {"nn", true, false, false}, {"cx", false, false, true}, {"nd", true, true, false}, {"nu", true, true, false},
    };
    for (const auto& [visit, saved, dialog, splash] : cases) {
        for (const char* end : {"X", "P"}) {
            FirstStart first({});
            first.dialogs.visit = std::string(visit) + end;
            EXPECT_EQ(Start(first.game), *end == 'P');
            EXPECT_EQ(first.Log(),
                      std::string("save,welcome,close help,") + (saved ? "save," : "") + (*end == 'P' ? "table," : ""))
                << visit;
            EXPECT_TRUE(first.game.settings.ShowDialog == dialog && first.game.settings.ShowSplash == splash) << visit;
            EXPECT_FALSE(first.game.session.SettingsChanged);
            const GameSettings kept = first.store.LoadSettings();
            EXPECT_TRUE(kept.ShowDialog == (!saved || dialog) && kept.ShowSplash == (saved && splash)) << visit;
        }
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
        EXPECT_EQ(first.Log(), std::string("save,unload splash,close help,unload guide,") +
                                   (music ? "close myMP3," : "") + "close song,");
    }
}

}  // namespace
