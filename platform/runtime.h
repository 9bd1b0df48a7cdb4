#pragma once

#include <exception>
#include <functional>
#include <string_view>

/// Answers the command line, if there is anything to answer, and ends the process then. Else creates the toolkit,
/// which is given the program's name and nothing of the command line.
void RuntimeInit(int count, char const* const* arguments);

/// Sets what must be there before the first window: the program's name, how the process ends, and where message
/// boxes and dialogs appear.
void RuntimePerformInitializers();

/// Calls back once the toolkit is up.
void _RunFrameworkInitialization(std::function<void()> const& lateStartup);

/// Runs the event loop until the user quits or the last window has closed.
void _RuntimeRun();

/// Destroys the windows that are still open, then the menu bars, the application object and the toolkit.
void RuntimePerformFinalizers();

/// The exit status of the process: 0, or 1 after an exception that nothing caught.
int RuntimeExit();

/// From here on an exception that leaves an event handler goes to this function, with its reason, and the
/// program goes on. Before that, and for all other exceptions, the caller of the event loop gets it.
void _InstallExceptionHelper(std::function<void(std::string_view reason)> helper);

/// Reports an exception that nothing caught on standard error and makes the exit status 1.
void _UnhandledException(std::exception_ptr const& exception);

/// The toolkit's place for extensions of the run-time; there are none.
void _RuntimeInitExternalClasses();
void _InitPluginEntrypoints();
