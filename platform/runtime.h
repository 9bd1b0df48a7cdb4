#pragma once

#include <exception>
#include <functional>
#include <string_view>

/// Answers the command line and exits; with nothing to answer, creates the toolkit, which sees only the program's name.
void RuntimeInit(int count, char const* const* arguments);

/// Sets up what the first window needs: the program's name and icon, signals, message boxes and dialogs.
void RuntimePerformInitializers();

/// Calls back once the toolkit is up.
void _RunFrameworkInitialization(std::function<void()> const& lateStartup);

/// Runs the event loop until the user quits or the last window closes.
void _RuntimeRun();

/// Destroys the open windows, then the menu bars, the application object and the toolkit.
void RuntimePerformFinalizers();

/// The exit status of the process: 0, or 1 after an uncaught exception.
int RuntimeExit();

/// From now on an exception from an event handler is reported to this function, and the program goes on. Earlier ones
/// and all others reach the caller of _RuntimeRun.
void _InstallExceptionHelper(std::function<void(std::string_view reason)> helper);

/// Writes an uncaught exception to standard error and sets the exit status to 1.
void _UnhandledException(std::exception_ptr const& exception);

/// Hooks for extensions; there are none.
void _RuntimeInitExternalClasses();
void _InitPluginEntrypoints();
