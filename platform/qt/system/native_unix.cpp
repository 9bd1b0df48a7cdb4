#include "platform/qt/system/native.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

std::string_view const kLineEnd = "\n";

QString FlushToDisk(int handle)
{
    while (::fsync(handle) != 0) {
        if (errno != EINTR) {
            bool const isNeeded = errno != EINVAL && errno != ENOTSUP; // some file systems keep nothing back
            return isNeeded ? qt_error_string(errno) : QString();
        }
    }
    return {};
}

void AttachToStartersConsole() {} // the streams are connected from the start

namespace {

std::array<int, 2> signalPipe = {-1, -1}; // the end to read from, the end to write to

/// A signal may come at any moment, so all that its handler does is to wake the event loop.
extern "C" void WakeEventLoop(int /*signal*/)
{
    int const saved = errno;
    char const byte = 0;
    [[maybe_unused]] ssize_t const written = ::write(signalPipe[1], &byte, 1);
    errno = saved;
}

void Install(int signal, void (*handler)(int))
{
    struct sigaction old = {};
    ::sigaction(signal, nullptr, &old);
    if (old.sa_handler == SIG_IGN) { // started so that it outlives its terminal
        return;
    }
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

void HandleSignals(std::function<void()> const& end)
{
    Install(SIGXFSZ, SIG_IGN);
    if (::pipe(signalPipe.data()) != 0) {
        return;
    }
    for (int const pipeEnd : signalPipe) {
        ::fcntl(pipeEnd, F_SETFD, FD_CLOEXEC);
    }
    auto* const notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, end);
    for (int const signal : {SIGTERM, SIGHUP, SIGINT}) {
        Install(signal, WakeEventLoop);
    }
}
