#pragma once

#include "platform/qt/widgets/front_window.h"
#include "platform/qt/widgets/got_focus_queue.h"
#include "platform/qt/widgets/key_history.h"

#include <QApplication>

#include <functional>

/// The application object. It sees each event before its receiver does, and owns the state that belongs to no single
/// window: keys, focus events, the window in front.
class Program final : public QApplication {
public:
    using QApplication::QApplication;

    static Program& instance() { return *static_cast<Program*>(qApp); }

    KeyHistory keys;
    GotFocusQueue gotFocus;
    FrontWindow front;
    std::function<void()> quitRequested; ///< the desktop asks the program to quit, for example at a log-out

    /// Runs the command now if the user's input is being handled, otherwise from the event loop: an assistive program
    /// that chooses a command must not wait for the dialog that the command opens.
    void runCommand(std::function<void()> const& command);

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    bool notifyKey(QObject* receiver, QKeyEvent* event);

    int inputDepth_ = 0; ///< nesting depth of input events
};
