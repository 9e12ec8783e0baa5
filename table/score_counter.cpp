#include "table/score_counter.h"

#include <cstdlib>
#include <utility>

#include "core/effects.h"
#include "core/show.h"
#include "core/timing.h"

namespace {

using enum CounterPicture;

using CounterDigits = Indexed<int, 4>;  // units first
using CounterPlaces = Indexed<int, 4>;

enum Digit : int { units, tens, hundreds, thousands };

// Pixels, by the number of digits. Numbers are centred, so the places depend on how many digits are shown.
struct Positions {
    CounterPlaces digit;  // units first; a digit that is not shown has no place
    int minus;
};

constexpr Indexed<Positions, 4, int, 1> positionsFor{{{
    {{{75, 0, 0, 0}}, 62},
    {{{81, 68, 0, 0}}, 55},
    {{{88, 75, 62, 0}}, 49},
    {{{94, 81, 68, 55}}, 0},
}}};

// Of two digits or more; where a carry has moved the places, zeros are drawn again there.
constexpr int zeroOfHundreds = 88;
constexpr int zeroOfThousands = 94;
constexpr int tenZeroOfThousands = 81;

CounterDigits DigitsOf(int n) { return {{n % 10, n / 10 % 10, n / 100 % 10, n / 1000}}; }

int DigitCount(int n) {
    if (n < 10) return 1;
    if (n < 100) return 2;
    return n < 1000 ? 3 : 4;
}

int StepDelay(int rise) {
    if (rise < 20) return 50;
    if (rise < 30) return 40;
    if (rise < 40) return 30;
    return rise < 60 ? 20 : 10;
}

void DrawDirectly(Game& game, int value) {
    const CounterDigits digits = DigitsOf(value);
    game.view.CopyPicture(picScoreB, picBuffer2);
    const int count = DigitCount(value);
    const Positions& places = positionsFor[count];
    if (game.session.Total < 0 && value < 1000) game.view.DrawMinus(picBuffer2, places.minus);
    for (int d = 0; d < count; ++d) game.view.DrawDigit(picBuffer2, digits[d], places.digit[d]);
    game.view.CopyPicture(picBuffer2, picScore);
    game.view.RefreshCounter();
    game.view.CopyPicture(picScore, picBuffer0);
}

// One run of the odometer, point by point.
class Count {
public:
    Count(Game& game, int from, int target)
        : game_(game),
          start_(DigitsOf(from)),
          target_(DigitsOf(target)),
          digits_(start_),
          digitCount_(DigitCount(from)) {
        TakePositions();
    }

    void Run(int delay) {
        while (digits_ != target_) Round(delay);
        RedrawZeros();
    }

private:
    int& At(Digit digit) { return digits_[digit]; }

    void TakePositions() { x_ = positionsFor[digitCount_].digit; }

    void Draw(Digit digit, int x) { game_.view.DrawDigit(picScore, At(digit), x); }

    bool AboveAtTarget(Digit digit) const {
        for (int above = digit + 1; above <= thousands; ++above)
            if (digits_[above] != target_[above]) return false;
        return true;
    }

    // Adds 1. Returns whether the next digit has to follow.
    bool Advance(Digit digit) {
        if (++At(digit) <= 9) return false;
        At(digit) = 0;
        if (digit == thousands || AboveAtTarget(digit)) return false;
        const auto next = static_cast<Digit>(digit + 1);
        if (At(next) == start_[next]) MakeRoom(next);
        return true;
    }

    // The first carry into a digit: it may be one that is not shown yet.
    void MakeRoom(Digit digit) {
        if (digitCount_ == static_cast<int>(digit)) {
            ++digitCount_;
            TakePositions();
        }
        game_.view.EraseDigit(x_[digit]);
    }

    void Round(int delay) {
        const bool toTens = Advance(units);
        Draw(units, x_[units]);
        game_.clock.Wait(delay);
        if (thousandsMoved_) {
            Draw(tens, x_[tens]);
            game_.view.RefreshCounter();
        }
        if (toTens) CarryIntoTens();
        game_.view.RefreshCounter();
    }

    void CarryIntoTens() {
        const bool toHundreds = Advance(tens);
        Draw(tens, x_[tens]);
        if (!toHundreds) return;
        const bool toThousands = Advance(hundreds);
        Draw(hundreds, x_[hundreds]);
        if (!toThousands) return;
        thousandsMoved_ = true;
        ++At(thousands);
        Draw(thousands, positionsFor[4].digit[thousands]);
    }

    // A carry that adds a digit moves the places after the lower digits of that round have been drawn.
    void RedrawZeros() {
        if (target_[thousands] == 0 && target_[hundreds] >= 1 && target_[units] == 0) DrawZero(zeroOfHundreds);
        if (target_[thousands] == 0) return;
        if (target_[units] == 0) DrawZero(zeroOfThousands);
        if (target_[tens] == 0) DrawZero(tenZeroOfThousands);
    }

    void DrawZero(int x) {
        game_.view.DrawDigit(picScore, 0, x);
        game_.view.RefreshCounter();
    }

    Game& game_;
    const CounterDigits start_;
    const CounterDigits target_;
    CounterDigits digits_;  // shown now
    int digitCount_;        // of them are shown, 1 to 4
    CounterPlaces x_{};
    bool thousandsMoved_ = false;
};

void CountUp(Game& game) {
    const GameSession& session = game.session;
    Count count(game, session.PrevTotal, session.Total);
    if (session.Total > 0) PlayEffect(game, "counter7");
    count.Run(StepDelay(session.Total - session.PrevTotal));
    game.view.CopyPicture(picScore, picBuffer0);
    PlayEffect(game, "counter0");
}

void ShowUnchanged(Game& game) {
    if (game.session.Total != 0) return;
    game.view.DrawDigit(picScore, 0, positionsFor[1].digit[units]);
    game.view.RefreshCounter();
    game.view.CopyPicture(picScore, picBuffer0);
}

}  // namespace

void ScoreCounter(Game& game) {
    GameSession& session = game.session;
    session.CounterRan = true;
    game.view.CopyPicture(picScore, picBuffer1);
    game.view.CopyPicture(picScore, picBuffer0);
    if (session.Total == session.PrevTotal && session.Total >= 0)
        ShowUnchanged(game);
    else if (session.Total < session.PrevTotal || session.Total < 0 || session.PrevTotal < 0)
        DrawDirectly(game, std::abs(session.Total));
    else
        CountUp(game);
}

void tmrCounter_Timer(Game& game) {
    if (!std::exchange(game.session.CounterSkip, false)) ScoreCounter(game);
    DisableTimer(game, Timer::tmrCounter);
}
