#include "platform/qt/guarded.h"

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
