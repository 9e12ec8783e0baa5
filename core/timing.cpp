#include "core/timing.h"

void EnableTimer(Game& game, Timer timer) {
    TimerState& state = game.table.timers[timer];
    if (state.enabled) return;
    state.enabled = true;
    game.timers.Start(timer, state.interval);
}

void DisableTimer(Game& game, Timer timer) {
    game.table.timers[timer].enabled = false;
    game.timers.Stop(timer);
}

void SetTimerInterval(Game& game, Timer timer, int ms) {
    TimerState& state = game.table.timers[timer];
    state.interval = ms;
    if (state.enabled) game.timers.Start(timer, ms);
}
