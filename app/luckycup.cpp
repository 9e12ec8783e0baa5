#include "app/luckycup.h"

#include <QDir>
#include <QLockFile>
#include <QScreen>
#include <QStandardPaths>

#include "app/program.h"
#include "core/program_folder.h"
#include "kit/message_box.h"
#include "kit/sized_widgets.h"
#include "store/size_store.h"
#include "table/window/first_pictures.h"
#include "table/window/layout.h"

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
    return AsFolder(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString());
}

}  // namespace

int Main(QApplication& app) {
    ChangeSize(SizeAtStart(StoredSize(), app.primaryScreen()->availableSize()));
    Art art;
    QLockFile lock(LockPath());
    if (RunsAlready(lock)) {
        ShowMessageBox(nullptr, art,
                       {"LuckyCup Running", "LuckyCup is already running!", MessageIcon::Stop, MessageButtons::Ok});
        return 0;
    }
    art.RenderAhead(FirstPictures(app.devicePixelRatio()));
    Program program(ProgramFolder(), art);
    return program.Start() ? app.exec() : 0;
}
