#include "platform/qt/native.h"

#include <QtGlobal>

#include <cerrno>
#include <unistd.h>

char const* const kLineEnd = "\n";

QString FlushToDisk(int handle)
{
    int result = 0;
    do {
        result = ::fsync(handle);
    } while (result != 0 && errno == EINTR);
    bool const hasNone = errno == EINVAL || errno == ENOTSUP; // a file system that keeps nothing back
    return result == 0 || hasNone ? QString() : qt_error_string(errno);
}

void UseStartersConsole() {} // the streams are there from the start
