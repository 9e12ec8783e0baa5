#include "app/end_signals.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace {

// Where a signal is told, since all that a handler may do is to write: the event loop reads the other end.
int tellingEnd = -1;

void Tell(int) {
    const int before = errno;
    [[maybe_unused]] const auto written = write(tellingEnd, "", 1);
    errno = before;
}

void Catch(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) return;
    action.sa_handler = Tell;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

}  // namespace

void EndOnSignals(QCoreApplication& app) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    tellingEnd = ends[1];
    auto* heard = new QSocketNotifier(ends[0], QSocketNotifier::Read, &app);
    QObject::connect(heard, &QSocketNotifier::activated, &app, [] { QCoreApplication::exit(); });
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) Catch(signal);
}
#else
void EndOnSignals(QCoreApplication&) {}
#endif
