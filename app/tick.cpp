#include "app/tick.h"

#include "table/score_counter.h"

void Tick(Game& game, TableParts& parts, BackgroundMusic& music, Timer timer) {
    switch (timer) {
        case Timer::tmrRollDice:
            return tmrRollDice_Timer(game, parts.status);
        case Timer::tmrTimeElapsed:
            return tmrTimeElapsed_Timer(game);
        case Timer::tmrGameOver:
            return tmrGameOver_Timer(game, parts.status);
        case Timer::tmrAnimation:
            return tmrAnimation_Timer(game, parts.animation);
        case Timer::tmrCounter:
            return tmrCounter_Timer(game);
        case Timer::Timer3:
            return Timer3_Timer(game, music);
        case Timer::Timer4:
            return Timer4_Timer(game, music);
    }
}
