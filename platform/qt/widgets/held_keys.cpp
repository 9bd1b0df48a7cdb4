#include "platform/qt/widgets/held_keys.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace {

struct { // all 0 and false at the start
    quint64 releaseTime;
    quint32 releasedKey;
    quint64 pressTime;
    bool isRepeat;
} last;

bool IsX11()
{
    static bool const isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    return isX11;
}

} // namespace

void NoteKey(QKeyEvent const& event)
{
    if (event.type() == QEvent::KeyRelease) {
        last.releaseTime = event.timestamp();
        last.releasedKey = event.nativeScanCode();
    } else {
        last.pressTime = event.timestamp();
        last.isRepeat = IsRepeat(event);
    }
}

bool IsRepeat(QKeyEvent const& event)
{
    bool const isReleaseAgain = event.timestamp() != 0 && event.timestamp() == last.releaseTime &&
                                event.nativeScanCode() == last.releasedKey;
    return event.isAutoRepeat() || (isReleaseAgain && IsX11());
}

bool IsLastPressRepeat()
{
    return last.isRepeat;
}

unsigned long long LastPressTime()
{
    return last.pressTime;
}
