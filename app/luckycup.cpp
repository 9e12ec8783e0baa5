#include "app/luckycup.h"

#include <QDir>

#include "app/program.h"
#include "app/single_instance.h"
#include "core/program_folder.h"
#include "kit/message_box.h"
#include "table/window/first_pictures.h"

namespace {
std::string ProgramFolder() {
    return AsFolder(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString());
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
    Program program(ProgramFolder(), art);
    return program.Start() ? app.exec() : 0;
}
