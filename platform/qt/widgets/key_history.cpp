#include "platform/qt/widgets/key_history.h"

#include <QKeyEvent>

#include <utility>

void KeyHistory::note(QKeyEvent const& event)
{
    Stroke const stroke{event.timestamp(), event.key()};
    bool const hasTime = stroke.time != 0;
    if (event.type() == QEvent::KeyRelease) {
        lastRelease_ = hasTime ? stroke : lastRelease_;
        return;
    }
    isRepeat_ = event.isAutoRepeat() || (hasTime && stroke == lastRelease_);
    if (hasTime && stroke != lastPress_) {
        timeBefore_ = std::exchange(lastPress_, stroke).time;
    }
}
