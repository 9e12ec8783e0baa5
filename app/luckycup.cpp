#include "app/luckycup.h"

#include <QStandardPaths>

#include "app/program.h"
#include "app/single_instance.h"
#include "kit/message_box.h"
#include "table/window/first_pictures.h"

namespace {
ProgramFiles Files() {
    return FindProgramFiles(QCoreApplication::applicationDirPath(),
                            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}
}  // namespace

int Main(QApplication& app) {
    Art art;
    FileLock lock;
    if (!TakeOnlyInstance(lock)) {
        ShowMessageBox(nullptr, art,
                       {"LuckyCup Running", "LuckyCup is already running!", MessageIcon::Stop, MessageButtons::Ok});
        return 0;
    }
    art.RenderAhead(FirstPictures(app.devicePixelRatio()));
    Program program(Files(), art);
    return program.Start() ? app.exec() : 0;
}
