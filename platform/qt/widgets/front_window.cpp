#include "platform/qt/widgets/front_window.h"

#include "platform/qt/widgets/top_level.h"

TopLevel* FrontWindow::window() const
{
    return static_cast<TopLevel*>(window_.data());
}

void FrontWindow::enter(TopLevel& window)
{
    window_ = &window;
}

void FrontWindow::leave(TopLevel const& window)
{
    if (window_ == &window) {
        window_ = nullptr;
    }
}

bool FrontWindow::ignoresShortcut(QObject const& command)
{
    bool const isIgnored = ignored_ == &command;
    ignored_ = isIgnored ? nullptr : ignored_;
    return isIgnored;
}
