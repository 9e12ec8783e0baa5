#include "app/program.h"

#include "app/tick.h"

Program::Program(const ProgramFiles& files, Art& pictures)
    : art(pictures), sound(files.plugIns, files.data, clock), scores(files.scores) {
    game.session.AppPath = files.data;
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
