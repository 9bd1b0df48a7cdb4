#include "platform/qt/system/native.h"

#include <QtGlobal>

#include <cstdio>
#include <io.h>
#include <stdlib.h>
#include <windows.h>

namespace {

bool LeadsNowhere(DWORD stream)
{
    return GetFileType(GetStdHandle(stream)) == FILE_TYPE_UNKNOWN;
}

} // namespace

std::string_view const kLineEnd = "\r\n";

QString FlushToDisk(int handle)
{
    return _commit(handle) == 0 ? QString() : qt_error_string(static_cast<int>(_doserrno));
}

/// There are no such signals here.
void HandleSignals(std::function<void()> const& /*end*/) {}

void AttachToStartersConsole()
{
    // Asked first: once attached, both lead somewhere, but the C++ streams would not know.
    bool const needsOutput = LeadsNowhere(STD_OUTPUT_HANDLE);
    bool const needsError = LeadsNowhere(STD_ERROR_HANDLE);
    if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) {
        return; // started by a click
    }
    if (needsOutput) {
        (void)std::freopen("CONOUT$", "w", stdout);
    }
    if (needsError) {
        (void)std::freopen("CONOUT$", "w", stderr);
    }
}
