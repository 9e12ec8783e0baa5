#include "script/headless_view.h"

void HeadlessView::MinimizeWindow() {
    log_.push_back("minimize");
    if (afterMinimizing) afterMinimizing();
}

void HeadlessView::CopyPicture(CounterPicture from, CounterPicture to) { At(to) = At(from); }

void HeadlessView::DrawDigit(CounterPicture to, int digit, int x) { At(to).Draw(static_cast<char>('0' + digit), x); }

void HeadlessView::DrawMinus(CounterPicture to, int x) { At(to).Draw('-', x); }

void HeadlessView::EraseDigit(int x) { At(CounterPicture::picScore).Erase(x); }

void HeadlessView::RefreshCounter() { log_.push_back("refresh " + CounterText(At(CounterPicture::picScore))); }

void HeadlessView::BlankScoreCounter(CounterPicture picture) { CopyPicture(CounterPicture::picScoreB, picture); }
