#pragma once

#include <exception>
#include <functional>
#include <string_view>
#include <type_traits>

/// What an exception that leaves a handler is reported to; empty until one is installed.
std::function<void(std::string_view reason)>& ExceptionHelper();

/// Reports the exception at hand to the helper, or passes it on where there is none.
void ReportException();

/// Calls a handler of the program from an event. An exception ends at the report: the toolkit can't carry
/// one. Gives what the handler gives, or a default value after an exception.
template <class Handler, class... Arguments>
auto Guarded(Handler const& handler, Arguments&&... arguments)
{
    using Result = std::invoke_result_t<Handler const&, Arguments...>;
    try {
        return handler(std::forward<Arguments>(arguments)...);
    } catch (...) {
        ReportException();
    }
    return Result();
}
