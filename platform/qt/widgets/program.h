#pragma once

#include <QApplication>

#include <functional>

/// The application object. It knows whether a key or the mouse is being handled.
class Program final : public QApplication {
public:
    using QApplication::QApplication;

    /// Calls back now if a key or the mouse is being handled, else once the caller has its answer: an assistive
    /// program that chooses a command must not wait for the dialog that the command opens.
    static void runCommand(std::function<void()> const& command);

    bool notify(QObject* receiver, QEvent* event) override;
};
