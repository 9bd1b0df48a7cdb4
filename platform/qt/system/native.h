#pragma once

#include <QString>

#include <functional>
#include <string_view>

// What needs calls of the operating system itself; the build chooses the file. Where only the toolkit differs from one
// system to the next, the difference is dealt with on the spot.

/// How a line of text ends.
extern std::string_view const kLineEnd;

/// Makes the system write a file's content to the disk. Returns the reason of a failure, empty if there was
/// none.
QString FlushToDisk(int handle);

/// Connects standard output and error to the console that started the program, on systems that detach programs with
/// windows from it. Streams that lead to a file or a pipe stay as they are. Only for a program that is about to
/// end: Ctrl+C on that console, meant for another program there, ends this one too, and so does closing it.
void AttachToStartersConsole();

/// Calls back from the event loop when the system asks the program to end, and makes a file that grows past the
/// user's limit a failed write instead of the program's death.
void HandleSignals(std::function<void()> const& end);
