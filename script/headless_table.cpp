#include "script/headless_table.h"

#include <filesystem>

#include "app/tick.h"
#include "store/top_score_files.h"
#include "table/main_window.h"

HeadlessTable::HeadlessTable(const GameSettings& settings, const std::string& folder)
    : game(Ports{view, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}) {
    game.settings = settings;
    view.afterMinimizing = [this] { Form_Resize(game, true); };
    UseFolder(folder);
}

void HeadlessTable::UseFolder(const std::string& folder) {
    constexpr auto separator = static_cast<char>(std::filesystem::path::preferred_separator);
    game.session.AppPath = folder;
    if (!folder.ends_with(separator)) game.session.AppPath += separator;
    scores.Keep(std::make_unique<TopScoreFiles>(game.session.AppPath));
}

void HeadlessTable::Load() { Form_Load(game); }

void HeadlessTable::Tick(Timer timer) { ::Tick(game, parts, music, timer); }
