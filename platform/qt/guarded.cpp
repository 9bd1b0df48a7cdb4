#include "platform/qt/guarded.h"

#include <vector>

namespace {

int runningHandlers = 0; // nested: behind the message box of one another one can run
std::vector<std::function<void()>> afterHandlers;

} // namespace

RunningHandler::RunningHandler()
{
    ++runningHandlers;
}

RunningHandler::~RunningHandler()
{
    --runningHandlers;
    if (runningHandlers == 0) {
        for (auto const& act : std::exchange(afterHandlers, {})) {
            act();
        }
    }
}

void AfterHandlers(std::function<void()> const& act)
{
    if (runningHandlers == 0) {
        act();
    } else {
        afterHandlers.push_back(act);
    }
}

std::function<void(std::string_view reason)>& ExceptionHelper()
{
    static std::function<void(std::string_view)> helper;
    return helper;
}

std::string ReasonOf(std::exception_ptr const& exception)
{
    try {
        std::rethrow_exception(exception);
    } catch (std::exception const& known) {
        return known.what();
    } catch (...) {
        return "an unknown error";
    }
}

void ReportException()
{
    if (!ExceptionHelper()) {
        throw;
    }
    ExceptionHelper()(ReasonOf(std::current_exception()));
}
