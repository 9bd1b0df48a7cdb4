#include "platform/qt/system/native.h"

#include <QtGlobal>

#include <cstdio>
#include <io.h>
#include <stdlib.h>
#include <windows.h>

namespace {

bool IsUnconnected(DWORD stream)
{
    return GetFileType(GetStdHandle(stream)) == FILE_TYPE_UNKNOWN;
}

} // namespace

std::string_view const kLineEnd = "\r\n";

QString FlushToDisk(int handle)
{
    return _commit(handle) == 0 ? QString() : qt_error_string(static_cast<int>(_doserrno));
}

/// On Windows permissions are access lists, which a file inherits from its folder.
QString KeepGroup(QString const& /*path*/, int /*handle*/)
{
    return {};
}

/// Windows has no such signals.
void HandleSignals(std::function<void()> const& /*end*/) {}

void AttachToParentConsole()
{
    // Asked before attaching, which connects both handles, but not the C++ streams.
    bool const needsOutput = IsUnconnected(STD_OUTPUT_HANDLE);
    bool const needsError = IsUnconnected(STD_ERROR_HANDLE);
    if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) {
        return; // not started from a console
    }
    if (needsOutput) {
        (void)std::freopen("CONOUT$", "w", stdout);
    }
    if (needsError) {
        (void)std::freopen("CONOUT$", "w", stderr);
    }
}
