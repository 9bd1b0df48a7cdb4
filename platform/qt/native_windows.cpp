#include "platform/qt/native.h"

#include <QtGlobal>

#include <cerrno>
#include <io.h>

char const* const kLineEnd = "\r\n";

QString FlushToDisk(int handle)
{
    return _commit(handle) == 0 ? QString() : qt_error_string(errno);
}
