#include "app/program.h"

#include "app/tick.h"
#include "core/start.h"

Program::Program(const ProgramFiles& files, Art& pictures)
    : art(pictures),
      sound(files.plugIns, files.data, clock),
      scores(files.scores),
      shell(files.data, files.scores, pictures) {
    game.session.AppPath = files.data;
    window.SetMenuStyle(menuStyle);
    dialogs.SetShowMainWindow([this] { ShowMainWindow(); });
    timers.SetTick([this](Timer timer) { Tick(game, parts, music, timer); });
}

// The game goes before the window does, which must not reach for it then.
Program::~Program() { window.LetGo(); }

void Program::ShowMainWindow() {
    window.Load(game);
    window.show();
}

bool Program::Start() { return ::Start(game); }
