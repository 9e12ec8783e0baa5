#include "app/luckycup.h"

#include <QScreen>
#include <QStandardPaths>

#include "app/end_signals.h"
#include "app/program.h"
#include "app/single_instance.h"
#include "kit/look.h"
#include "kit/message_box.h"
#include "kit/sized_widgets.h"
#include "store/size_store.h"
#include "table/window/first_pictures.h"
#include "table/window/layout.h"

namespace {
ProgramFiles Files() {
    return FindProgramFiles(QCoreApplication::applicationDirPath(),
                            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}
}  // namespace

int Main(QApplication& app) {
    EndOnSignals(app);
    ChangeSize(SizeAtStart(StoredSize(), app.primaryScreen()->availableSize()));
    Art art;
    FileLock lock;
    if (!TakeOnlyInstance(lock)) {
        SetGameIcon(art);
        ShowMessageBox(nullptr, art,
                       {"LuckyCup Running", "LuckyCup is already running!", MessageIcon::Stop, MessageButtons::Ok});
        return 0;
    }
    art.RenderAhead(FirstPictures(app.devicePixelRatio()));
    Program program(Files(), art);
    const int status = program.Start() ? app.exec() : 0;
    program.window.Leave();
    return status;
}
