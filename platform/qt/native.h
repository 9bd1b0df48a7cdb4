#pragma once

#include <QString>

// What differs from one operating system to the next; the build chooses the file.

/// How a line of text ends.
extern char const* const kLineEnd;

/// Has the system put what was written to this file on the disk. Gives the reason of a failure, empty if
/// there was none.
QString FlushToDisk(int handle);
