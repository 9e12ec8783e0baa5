#include "app/program.h"

#include "app/tick.h"
#include "core/program_folder.h"
#include "core/start.h"

Program::Program(const std::string& programFolder, Art& pictures)
    : art(pictures),
      sound(programFolder, clock),
      scores(ScoresFolder(programFolder)),
      shell(programFolder, ScoresFolder(programFolder), pictures) {
    game.session.AppPath = programFolder;
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
