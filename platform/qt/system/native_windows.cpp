#include "platform/qt/system/native.h"

#include <QtGlobal>

#include <io.h>
#include <stdlib.h>

char const* const kLineEnd = "\r\n";

QString FlushToDisk(int handle)
{
    return _commit(handle) == 0 ? QString() : qt_error_string(static_cast<int>(_doserrno));
}

/// There are no such signals here.
void HandleSignals(std::function<void()> const& /*end*/) {}
