#pragma once

#include <QtGlobal>

class QKeyEvent;

/// When the last keys went down and up, by the time stamps of their events in milliseconds. An event without one may
/// be a copy of an earlier event, so no time is taken from it.
class KeyHistory final {
public:
    /// To be called with each key event before its receiver gets it. A press that passes several receivers counts once.
    void note(QKeyEvent const& event);

    /// Whether the last press repeats a key that is held down. On X11 a repeat is a release and a press with one time
    /// stamp; the toolkit marks it only if both have arrived by the time that it looks.
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
    quint64 timeBefore_ = 0; ///< of the press before the last one
    bool isRepeat_ = false;
};
