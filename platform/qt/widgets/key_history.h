#pragma once

#include <QtGlobal>

class QKeyEvent;

/// When the last keys were pressed and released, by the time stamps of their events in milliseconds. An event without
/// a time stamp may be a copy of an earlier one, so its time does not count.
class KeyHistory final {
public:
    /// Called with each key event before its receiver gets it. A press sent to several receivers counts once.
    void note(QKeyEvent const& event);

    /// Whether the last press is the repeat of a held key. On X11 a repeat is a release and a press with the same time
    /// stamp; Qt marks it only if both have already arrived.
    [[nodiscard]] bool isLastPressRepeat() const { return isRepeat_; }

    /// Milliseconds between the last press and the one before it.
    [[nodiscard]] quint64 pauseBeforeLastPress() const { return lastPress_.time - timeBefore_; }

private:
    struct Stroke {
        quint64 time = 0;
        int key = 0;
        bool operator==(Stroke const&) const = default;
    };

    Stroke lastPress_;
    Stroke lastRelease_;
    quint64 timeBefore_ = 0; ///< time of the press before the last one
    bool isRepeat_ = false;
};
