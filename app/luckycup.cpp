#include "app/luckycup.h"

#include <QScreen>
#include <QStandardPaths>
#include <algorithm>
#include <iterator>

#include "app/end_signals.h"
#include "app/program.h"
#include "app/single_instance.h"
#include "dialogs/window/frm_welcome.h"
#include "kit/look.h"
#include "kit/message_box.h"
#include "kit/size.h"
#include "store/settings_store.h"
#include "store/size_store.h"
#include "table/window/first_pictures.h"
#include "table/window/layout.h"

namespace {
ProgramFiles Files() {
    return FindProgramFiles(QCoreApplication::applicationDirPath(),
                            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

// The pictures of the first window alone: the others would only take its time.
std::vector<Art::Wanted> PicturesAhead(qreal devicePixelRatio) {
    if (RegistrySettings().LoadSettings().ShowDialog) return WelcomePictures(devicePixelRatio);
    std::vector<Art::Wanted> pictures = FirstPictures(devicePixelRatio);
    std::ranges::move(MenuPictures(devicePixelRatio), std::back_inserter(pictures));
    return pictures;
}
}  // namespace

int Main(QApplication& app) {
    EndOnSignals(app);
    SetSize(SizeAtStart(StoredSize(), app.primaryScreen()->availableSize()));
    Art art;
    FileLock lock;
    const bool only = TakeOnlyInstance(lock);
    if (only) art.RenderAhead(PicturesAhead(app.devicePixelRatio()));  // before all that waits for the fonts
    ApplyLook();
    if (!only) {
        SetGameIcon(art);
        ShowMessageBox(nullptr, art,
                       {"LuckyCup Running", "LuckyCup is already running!", MessageIcon::Stop, MessageButtons::Ok});
        return 0;
    }
    Program program(Files(), art);
    const int status = program.Start() ? app.exec() : 0;
    program.window.Leave();
    return status;
}
