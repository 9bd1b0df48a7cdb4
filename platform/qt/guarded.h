#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// What an exception that leaves a handler is reported to, with its reason; empty until one is installed.
std::function<void(std::string_view reason)>& ExceptionHelper();

/// The reason that an exception states.
std::string ReasonOf(std::exception_ptr const& exception);

/// Reports the exception being handled to the helper, or throws it again if there is none.
void ReportException();

/// Counts as a running handler of the program as long as it exists.
class RunningHandler {
public:
    RunningHandler();
    ~RunningHandler();
    RunningHandler(RunningHandler const&) = delete;
    RunningHandler& operator=(RunningHandler const&) = delete;
};

/// Calls back when the last running handler has returned; at once if none is running.
void AfterHandlers(std::function<void()> const& act);

/// Calls a handler of the program from an event. An exception stops here, since none may pass through the
/// toolkit. Returns the handler's result, or a default value after an exception.
template <class Handler, class... Arguments>
auto Guarded(Handler const& handler, Arguments&&... arguments)
{
    using Result = std::invoke_result_t<Handler const&, Arguments...>;
    RunningHandler const running;
    try {
        return handler(std::forward<Arguments>(arguments)...);
    } catch (...) {
        ReportException();
    }
    return Result();
}

/// The same for an event that may have no handler; without one the result is a default value.
template <class Handler, class... Arguments>
auto Raise(Handler const& handler, Arguments&&... arguments)
{
    using Result = std::invoke_result_t<Handler const&, Arguments...>;
    return handler ? Guarded(handler, std::forward<Arguments>(arguments)...) : Result();
}
