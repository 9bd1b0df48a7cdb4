#include "platform/qt/system/native.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

std::string_view const kLineEnd = "\n";

QString FlushToDisk(int handle)
{
    while (::fsync(handle) != 0) {
        if (errno != EINTR) {
            bool const isNeeded = errno != EINVAL && errno != ENOTSUP; // such file systems have no need of it
            return isNeeded ? qt_error_string(errno) : QString();
        }
    }
    return {};
}

QString KeepGroup(QString const& path, int handle)
{
    struct stat old = {};
    struct stat now = {};
    if (::stat(QFile::encodeName(path), &old) != 0 || ::fstat(handle, &now) != 0 ||
        old.st_gid == now.st_gid) {
        return {};
    }
    mode_t mode = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (::fchown(handle, now.st_uid, old.st_gid) != 0) {
        constexpr int kFromOthersToGroup = 3; // bits
        mode &= ~static_cast<mode_t>(S_IRWXG) | ((mode & S_IRWXO) << kFromOthersToGroup);
    }
    return ::fchmod(handle, mode) == 0 ? QString() : qt_error_string(errno);
}

void AttachToParentConsole() {} // the streams are connected from the start

namespace {

std::array<int, 2> signalPipe = {-1, -1}; // read end, write end

/// A signal can arrive at any moment, so its handler does no more than wake the event loop.
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
    if (old.sa_handler == SIG_IGN) { // started with nohup, for one
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
