#include "core/box_click.h"
#include "core/turn.h"
#include "table/main_window.h"
#include "tests/table_driver.h"

namespace {

constexpr GameSettings fiveDice{.NumberOfDice = 4};

// Called while the sound of a placement is heard.
struct Listener : SoundEffects {
    void PlayEffect(std::string_view) override {}
    void PlayEffectWait(std::string_view) override { heard(); }
    std::function<void()> heard;
};

TEST(Placement, SoundComesBetweenTheTotalAndTheCountOfBoxes) {
    for (ScoreColumn column : allColumns) {
        PlayedTable table(fiveDice);
        HeadlessTable& t = table.table;
        Listener ears;
        Game game({t.view, t.timers, t.clock, t.random, ears, t.media, t.dialogs, t.scores, t.shell, t.store, t.parts});
        std::array<int, 3> heard{};
        ears.heard = [&] { heard = {game.table.roll.enabled, game.session.Total, game.session.BoxesFilled}; };
        game.settings = fiveDice;
        Form_Load(game);
        t.random.faces.assign(5, 1);
        picRollDices_MouseUp(game);
        // Holding all dice turns the Roll button off, as the writing of an announced box does by itself.
        for (int i = 0; i < 5 && column != ScoreColumn::Oblg; ++i) picDice_Click(game, i);
        const bool up = column == ScoreColumn::Up;  // gives it back before its sound, the others after it
        for (int click = column == ScoreColumn::Oblg ? 1 : 2; click <= 2; ++click)
            ClickBox(game, column, up ? rowLuckyCup : rowOnes);
        EXPECT_EQ(heard, (std::array{up ? 1 : 0, up ? 100 : 5, 0}));
        EXPECT_TRUE(game.table.roll.enabled && game.session.BoxesFilled == 1);
    }
}

}  // namespace
