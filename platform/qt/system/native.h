#pragma once

#include <QString>

#include <functional>

// What differs from one operating system to the next; the build chooses the file.

/// How a line of text ends.
extern char const* const kLineEnd;

/// Makes the system write a file's content to the disk. Returns the reason of a failure, empty if there was
/// none.
QString FlushToDisk(int handle);

/// Calls back from the event loop when the system asks the program to end, and makes a file that grows past the
/// user's limit a failed write instead of the program's death.
void HandleSignals(std::function<void()> const& end);
