#include "kit/event_gate.h"

#include <QApplication>
#include <utility>

void EventGate::Run(Handler handler) {
    if (shut_) return;
    // Behind those that wait, which do not run here: Qt may be in the middle of telling widgets that the mouse has left
    // them, and a handler that opens or closes windows would take them away.
    if (Busy() || !waiting_.empty())
        waiting_.push_back(std::move(handler));
    else
        Enter(handler);
}

bool EventGate::Busy() const { return depth_ > 0 || (opened_ > 0 && !QApplication::activeModalWidget()); }

void EventGate::Shut() {
    shut_ = true;
    waiting_.clear();
}

void EventGate::Enter(const Handler& handler) {
    const Inside inside(*this);
    handler();
}

void EventGate::RunLater() {
    if (waiting_.empty()) return;
    const auto run = [this] {
        if (!Busy() && !waiting_.empty()) RunFirstWaiting();
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

void EventGate::RunFirstWaiting() {
    const Handler handler = std::move(waiting_.front());
    waiting_.pop_front();
    Enter(handler);
}

EventGate::Inside::Inside(EventGate& gate) : gate_(gate) { ++gate_.depth_; }

EventGate::Inside::~Inside() {
    --gate_.depth_;
    gate_.RunLater();
}

EventGate::Open::Open(EventGate& gate) : gate_(gate), depth_(std::exchange(gate.depth_, 0)) {
    ++gate_.opened_;
    gate_.RunLater();
}

EventGate::Open::~Open() {
    --gate_.opened_;
    gate_.depth_ = depth_;
    gate_.RunLater();
}
