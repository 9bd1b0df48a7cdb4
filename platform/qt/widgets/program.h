#pragma once

#include "platform/qt/widgets/front_window.h"
#include "platform/qt/widgets/got_focus_queue.h"
#include "platform/qt/widgets/key_history.h"

#include <QApplication>

#include <functional>

/// The application object. It sees each event before its receiver does, and keeps what is known of the keyboard, the
/// focus and the windows as a whole.
class Program final : public QApplication {
public:
    using QApplication::QApplication;

    static Program& instance() { return *static_cast<Program*>(qApp); }

    KeyHistory keys;
    GotFocusQueue gotFocus;
    FrontWindow front;
    std::function<void()> quitRequested; ///< by the desktop, at a log-out for one; no window is asked

    /// Calls back now if the program is handling input of the user, else once the caller has its answer: an assistive
    /// program that chooses a command must not wait for the dialog that the command opens.
    void runCommand(std::function<void()> const& command);

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    bool notifyKey(QObject* receiver, QKeyEvent* event);

    int inputDepth_ = 0; ///< events of the user being handled, one inside the other
};
