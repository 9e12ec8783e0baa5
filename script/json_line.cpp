#include "script/json_line.h"

#include "core/overloaded.h"
#include "core/setting_fields.h"
#include "core/timer.h"
#include "script/json_writer.h"
#include "table/row_names.h"

namespace {

template <typename Write>
void Object(JsonWriter& json, std::string_view name, Write write) {
    json.Key(name);
    json.BeginObject();
    write();
    json.EndObject();
}

// One value for each item, in their order.
template <typename Items, typename Of>
auto Each(const Items& items, Of of) {
    std::vector<decltype(of(*items.begin()))> values;
    for (const auto& item : items) values.push_back(of(item));
    return values;
}

std::vector<int> RowsOf(const ByRow<bool>& flags) {
    std::vector<int> rows;
    for (int row = 0; row < rowCount; ++row)
        if (flags[row]) rows.push_back(row);
    return rows;
}

// An object of the four columns.
template <typename Of>
void Columns(JsonWriter& json, std::string_view name, const Scorecard& card, Of of) {
    Object(json, name, [&] {
        for (ScoreColumn column : allColumns) json.Member(ColumnName(column), of(card[column]));
    });
}

void WriteTurn(JsonWriter& json, const GameSession& session) {
    json.Member("SoundOn", session.SoundOn);
    json.Member("GameInProgress", session.GameInProgress);
    json.Member("RedoInProgress", session.RedoInProgress);
    json.Member("OpenedFromGame", session.OpenedFromGame);
    json.Member("SettingsChanged", session.SettingsChanged);
    json.Member("NewGameAnswer", session.NewGameAnswer);
    json.Member("EndGameFinish", session.EndGameFinish);
    json.Member("EndGameSeen", session.EndGameSeen);
    json.Member("RollCount", session.RollCount);
    json.Member("PrevRollCount", session.PrevRollCount);
    json.Member("FirstRollPending", session.FirstRollPending);
    json.Member("RollAllowed", session.RollAllowed);
    json.Member("CurrentRow", session.CurrentRow);
    json.Member("CurrentColumn", session.CurrentColumn);
    json.Member("PrevColumn", session.PrevColumn);
    json.Member("Announced", session.Announced);
    json.Member("AnnounceWriting", session.AnnounceWriting);
    json.Member("AnnounceResume", session.AnnounceResume);
    json.Member("RedoAnnounceTwice", session.RedoAnnounceTwice);
}

void WriteBoard(JsonWriter& json, const GameSession& session) {
    json.Member("NextDownRow", session.NextDownRow);
    json.Member("NextUpRow", session.NextUpRow);
    json.Member("BoxesFilled", session.BoxesFilled);
    json.Member("RowScore", session.RowScore);
    json.Member("ComputeOnly", session.ComputeOnly);
    json.Member("HintsOn", session.HintsOn);
    json.Member("HintsRequested", session.HintsRequested);
    json.Member("MayHint", session.MayHint);
    json.Member("TipsDirty", session.TipsDirty);
    json.Member("RowHighlighted", session.RowHighlighted);
    json.Member("GameOverShown", session.GameOverShown);
    json.Member("Total", session.Total);
    json.Member("PrevTotal", session.PrevTotal);
    json.Member("PrevTotal2", session.PrevTotal2);
    json.Member("OtherTotal", session.OtherTotal);
    json.Member("HintSnapshot", session.HintSnapshot);
    json.Member("BonusGiven", session.BonusGiven);
    json.Member("RandUpperCount", session.RandUpperCount);
    json.Member("OblgUpperCount", session.OblgUpperCount);
    json.Member("SecondPlayerOnMove", session.SecondPlayerOnMove);
    json.Member("SecondBoardReady", session.SecondBoardReady);
    json.Member("CounterRan", session.CounterRan);
    json.Member("CounterSkip", session.CounterSkip);
    json.Member("FinalScore1", session.FinalScore1);
    json.Member("FinalScore2", session.FinalScore2);
    json.Member("ShowScoreResult", session.ShowScoreResult);
    json.Member("LastScorePosition", session.LastScorePosition);
    json.Member("LastFinalScore", session.LastFinalScore);
}

void WriteSettings(JsonWriter& json, const GameSettings& settings) {
    for (const SettingField& field : settingFields)
        std::visit(Overloaded{[&](const NumberSetting& number) { json.Member(field.name, settings.*number.field); },
                              [&](auto member) { json.Member(field.name, settings.*member); }},
                   field.kind);
}

void WriteDice(JsonWriter& json, const Game& game) {
    const auto& pictures = game.table.dice;
    json.Member("DiceValues", game.dice.DiceValues);
    json.Member("RollFlags", game.dice.RollFlags);
    json.Member("HeldMirror", game.dice.HeldMirror);
    json.Member("UndoDiceValues", game.dice.UndoDiceValues);
    json.Member("LastDieIndex", game.dice.LastDieIndex);
    json.Member("face", Each(pictures, [](const DieState& die) { return die.face; }));
    json.Member("shown", Each(pictures,
                              [](const DieState& die) { return die.shown ? (die.held ? "held" : "free") : "hidden"; }));
    json.Member("enabled", Each(pictures, [](const DieState& die) { return die.shown && die.enabled; }));
}

void WriteBoxes(JsonWriter& json, const Game& game) {
    Columns(json, "boxes", game.card, [](const ColumnCard& column) { return column.boxes; });
    Columns(json, "totals", game.card, [](const ColumnCard& column) { return column.totals; });
    Columns(json, "offered", game.card, [](const ColumnCard& column) { return RowsOf(column.offered); });
    Columns(json, "enabled", game.card, [](const ColumnCard& column) { return RowsOf(column.enabled); });
    json.Member("tips", game.table.tips);
    json.Member("tipColumn", game.table.tipColumn);
    json.Member("highlight", RowsOf(game.table.highlighted));
}

void WriteWindow(JsonWriter& json, const TableState& table) {
    auto visible = Each(table.panels, [](const PanelState& panel) { return panel.visible; });
    visible.back() = true;  // the clock is never laid out anew
    json.Member("panels", Each(table.panels, [](const PanelState& panel) { return panel.text; }));
    json.Member("panelVisible", visible);
    json.Member("statusBar", table.statusBar);
    json.Member("height", table.height);
    json.Member("title", table.title);
}

void WriteControls(JsonWriter& json, const TableState& table) {
    constexpr Indexed<const char*, 3, RollPicture> pictures{{"up", "on", "off"}};
    Object(json, "roll", [&] {
        json.Member("enabled", table.roll.enabled);
        json.Member("visible", table.roll.visible);
        json.Member("picture", pictures[table.roll.picture]);
    });
    json.Member("lamps", table.lamps);
    json.Member("undo", table.undo);
    json.Member("redo", table.redo);
    json.Member("hintButton", table.hintButton);
    json.Member("nextPlayer", table.nextPlayer);
    Object(json, "showBoard", [&] {
        json.Member("visible", table.showBoard.visible);
        json.Member("enabled", table.showBoard.enabled);
        json.Member("caption", table.showBoard.caption);
    });
}

void WriteTimers(JsonWriter& json, const TableState& table) {
    for (Timer timer : allTimers)
        json.Member(timerNames[timer], table.timers[timer].enabled ? table.timers[timer].interval : 0);
}

void WriteCounter(JsonWriter& json, const HeadlessView& view) {
    json.Member("picScore", CounterText(view.Picture(CounterPicture::picScore)));
    json.Member("picBuffer0", CounterText(view.Picture(CounterPicture::picBuffer0)));
    json.Member("picBuffer1", CounterText(view.Picture(CounterPicture::picBuffer1)));
    json.Member("picPlayer1Score", CounterText(view.Picture(CounterPicture::picPlayer1Score)));
    json.Member("picPlayer2Score", CounterText(view.Picture(CounterPicture::picPlayer2Score)));
}

}  // namespace

std::string JsonLine(std::string_view event, bool ignored, const HeadlessTable& table) {
    const Game& game = table.game;
    JsonWriter json;
    json.BeginObject();
    json.Member("event", event);
    json.Member("ignored", ignored);
    json.Member("log", table.log);
    Object(json, "session", [&] {
        WriteTurn(json, game.session);
        WriteBoard(json, game.session);
    });
    Object(json, "settings", [&] { WriteSettings(json, game.settings); });
    Object(json, "dice", [&] { WriteDice(json, game); });
    WriteBoxes(json, game);
    WriteWindow(json, game.table);
    WriteControls(json, game.table);
    Object(json, "timers", [&] { WriteTimers(json, game.table); });
    Object(json, "counter", [&] { WriteCounter(json, table.view); });
    json.EndObject();
    return json.Take();
}
