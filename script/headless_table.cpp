#include "script/headless_table.h"

#include "app/tick.h"
#include "core/program_folder.h"
#include "store/top_score_files.h"
#include "table/main_window.h"

HeadlessTable::HeadlessTable(const GameSettings& settings, const std::string& folder)
    : game(Ports{view, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}) {
    game.settings = settings;
    view.afterMinimizing = [this] { Form_Resize(game, true); };
    UseFolder(folder);
}

void HeadlessTable::UseFolder(const std::string& folder) {
    game.session.AppPath = AsFolder(folder);
    scores.Keep(std::make_unique<TopScoreFiles>(ScoresFolder(game.session.AppPath)));
}

void HeadlessTable::Load() { Form_Load(game); }

void HeadlessTable::Tick(Timer timer) { ::Tick(game, parts, music, timer); }
