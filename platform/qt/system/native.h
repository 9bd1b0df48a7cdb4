#pragma once

#include <QString>

#include <functional>
#include <string_view>

// What needs calls of the operating system itself; the build picks the source file. Where only the toolkit differs from
// one system to the next, the difference is dealt with on the spot.

/// The line ending of text files.
extern std::string_view const kLineEnd;

/// Waits until a file's content is on the disk. Returns the reason for a failure, or an empty string.
QString FlushToDisk(int handle);

/// Gives an open file that is about to replace the one at this path that file's group and permissions. If the system
/// refuses the group, the group that the new file has instead gets no more rights than others had. Does nothing if
/// there is no file at the path. Returns the reason for a failure, or an empty string.
QString KeepGroup(QString const& path, int handle);

/// Shows standard output and error on the console that started the program, on systems that detach programs with
/// windows from it. Streams redirected to a file or a pipe stay as they are. Only for a program that is about to end:
/// Ctrl+C on that console, or closing it, would end this program too.
void AttachToParentConsole();

/// Calls end from the event loop when the system asks the program to end. Also makes a write past the limit on file
/// sizes fail instead of killing the program.
void HandleSignals(std::function<void()> const& end);
