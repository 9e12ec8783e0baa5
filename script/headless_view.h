#pragma once

#include <functional>

#include "core/silent_ports.h"
#include "script/counter_picture.h"
#include "script/event_log.h"

// A window that keeps its counter pictures only: all else that it is told stands in the records already.
class HeadlessView final : public SilentView {
public:
    explicit HeadlessView(EventLog& log) : log_(log) {}

    const GlyphColumns& Picture(CounterPicture picture) const { return pictures_[picture]; }

    std::function<void()> afterMinimizing;  // what a real window would report back

    void MinimizeWindow() override;
    void CopyPicture(CounterPicture from, CounterPicture to) override;
    void DrawDigit(CounterPicture to, int digit, int x) override;
    void DrawMinus(CounterPicture to, int x) override;
    void EraseDigit(int x) override;
    void RefreshCounter() override;
    void BlankScoreCounter(CounterPicture picture) override;

private:
    GlyphColumns& At(CounterPicture picture) { return pictures_[picture]; }

    EventLog& log_;
    ByCounterPicture<GlyphColumns> pictures_;
};
