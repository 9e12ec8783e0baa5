#pragma once

#include <QObject>
#include <deque>
#include <functional>

// The one door into the game. A handler runs to its end before the next one begins: what wants in meanwhile waits its
// turn and runs, in order, when the event loop is reached again. While a modal window stands open inside a handler the
// door is open once more, so that timers go on behind it; not so once it has closed, though its event loop may still
// have clicks to hand out.
class EventGate final : public QObject {
public:
    using Handler = std::function<void()>;

    void Run(Handler handler);
    bool Busy() const;  // what wants in waits
    void Shut();        // lets nothing in any more and drops what waits

    // Stands around the event loop of a modal window.
    class Open {
    public:
        explicit Open(EventGate& gate);
        ~Open();
        Open(const Open&) = delete;
        Open& operator=(const Open&) = delete;

    private:
        EventGate& gate_;
        int depth_;
    };

private:
    // Stands around a handler, however it ends.
    struct Inside {
        explicit Inside(EventGate& gate);
        ~Inside();
        Inside(const Inside&) = delete;
        Inside& operator=(const Inside&) = delete;
        EventGate& gate_;
    };

    void Enter(const Handler& handler);
    void RunLater();
    void RunFirstWaiting();

    int depth_ = 0;
    int opened_ = 0;  // windows around whose event loops an Open stands
    bool shut_ = false;
    std::deque<Handler> waiting_;
};
