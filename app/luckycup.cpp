#include "app/luckycup.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include "app/desktop_shell.h"
#include "app/seeded_random.h"
#include "app/tick.h"
#include "core/silent_ports.h"
#include "dialogs/window/qt_dialogs.h"
#include "kit/message_box.h"
#include "kit/qt_clock.h"
#include "kit/qt_timers.h"
#include "sound/background_music.h"
#include "store/settings_store.h"
#include "store/top_score_files.h"
#include "table/table_parts.h"
#include "table/window/first_pictures.h"
#include "table/window/frm_lucky_cup.h"

namespace {
QString LockPath() {
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return (own.isEmpty() ? QDir::homePath() : own) + "/LuckyCup.lock";
}

// A lock that a crashed process left behind does not count, nor does a folder that takes no lock at all.
bool RunsAlready(QLockFile& lock) {
    lock.setStaleLockTime(0);  // however old: only the death of its owner makes a lock stale
    return !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

std::string ProgramFolder() {
    const QString folder = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    return (folder.endsWith(QDir::separator()) ? folder : folder + QDir::separator()).toStdString();
}

// All that stands behind one table, each made before what it is handed to.
struct Program {
    Program(const std::string& programFolder, Art& pictures) : art(pictures), scores(programFolder) {
        game.session.AppPath = programFolder;
        game.settings = store.LoadSettings();
        timers.SetTick([this](Timer timer) { ::Tick(game, parts, music, timer); });
    }

    Art& art;
    EventGate gate;
    frmLuckyCup window{gate, art};
    QtTimers timers{gate};
    QtClock clock;
    SeededRandom random;
    SilentEffects effects;
    SilentMedia media;
    QtDialogs dialogs{window, gate, art};
    TopScoreFiles scores;
    DesktopShell shell;
    RegistrySettings store;
    TableParts parts;
    BackgroundMusic music;
    Game game{Ports{window, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}};
};
}  // namespace

int Main(QApplication& app) {
    QLockFile lock(LockPath());
    if (RunsAlready(lock)) {
        ShowMessageBox(nullptr,
                       {"LuckyCup Running", "LuckyCup is already running!", MessageIcon::Stop, MessageButtons::Ok});
        return 0;
    }
    Art art;
    art.RenderAhead(FirstPictures(app.devicePixelRatio()));
    Program program(ProgramFolder(), art);
    program.window.Load(program.game);
    program.window.show();
    return app.exec();
}
