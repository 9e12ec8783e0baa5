#include "app/luckycup.h"

#include <QScreen>
#include <QStandardPaths>

#include "app/end_signals.h"
#include "app/program.h"
#include "app/single_instance.h"
#include "dialogs/window/frm_welcome.h"
#include "kit/look.h"
#include "kit/message_box.h"
#include "kit/size.h"
#include "menus/menu_style.h"
#include "store/settings_store.h"
#include "store/size_store.h"
#include "table/window/first_pictures.h"
#include "table/window/layout.h"

namespace {
ProgramFiles Files() {
    return FindProgramFiles(QCoreApplication::applicationDirPath(),
                            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

// The pictures of the first window alone, since the others would only take its time; behind the splash those of the
// table, which follows it.
std::vector<Art::Wanted> PicturesAhead(qreal devicePixelRatio) {
    if (RegistrySettings().LoadSettings().ShowDialog) return WelcomePictures(devicePixelRatio);
    std::vector<Art::Wanted> pictures = FirstPictures(devicePixelRatio);
    for (Art::Wanted& picture : MenuPictures(devicePixelRatio)) pictures.push_back(std::move(picture));
    return pictures;
}
}  // namespace

int Main(QApplication& app, const std::future<void>& fonts) {
    EndOnSignals(app);
    SetSize(SizeAtStart(StoredSize(), app.primaryScreen()->availableSize()));
    Art art;
    FileLock lock;
    const bool only = TakeOnlyInstance(lock);
    if (only) art.RenderAhead(PicturesAhead(app.devicePixelRatio()));  // before all that waits for the fonts
    fonts.wait();
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
