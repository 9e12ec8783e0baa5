#include "app/program.h"

#include "app/tick.h"
#include "core/program_folder.h"

Program::Program(const std::string& programFolder, Art& pictures)
    : art(pictures), sound(programFolder, clock), scores(ScoresFolder(programFolder)) {
    game.session.AppPath = programFolder;
    game.settings = store.LoadSettings();
    window.SetMenuStyle(menuStyle);
    timers.SetTick([this](Timer timer) { Tick(game, parts, music, timer); });
}

// The game goes before the window does, which must not reach for it then.
Program::~Program() { window.LetGo(); }

void Program::ShowMainWindow() {
    window.Load(game);
    window.show();
}
