#pragma once

#include <QString>

// What differs from one operating system to the next; the build chooses the file.

/// How a line of text ends.
extern char const* const kLineEnd;

/// Has the system put what was written to this file on the disk. Gives the reason of a failure, empty if
/// there was none.
QString FlushToDisk(int handle);

/// Has standard output and error come out on the console that the program was started from, where a system
/// keeps programs with windows away from it. Streams that lead to a file or a pipe stay as they are.
void UseStartersConsole();
