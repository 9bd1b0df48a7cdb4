#pragma once

#include <QPointer>
#include <QWidget>

class TopLevel;

/// The window in front, and the menu command whose next shortcut is ignored there.
class FrontWindow final {
public:
    /// The active window, or the last one that was active; null if there is none.
    [[nodiscard]] TopLevel* window() const;
    /// Called when a window becomes active.
    void enter(TopLevel& window);
    /// Called when a window closes. No window is in front until another one becomes active.
    void leave(TopLevel const& window);

    /// Ignores the next press of this command's shortcut, unless the user types, chooses another command or moves the
    /// focus first. The menu item itself always works.
    void ignoreNextShortcut(QObject const& command) { ignored_ = &command; }
    /// No shortcut is ignored any more.
    void heedShortcuts() { ignored_ = nullptr; }
    /// Whether to ignore this press of the command's shortcut. The next press works again.
    [[nodiscard]] bool ignoresShortcut(QObject const& command);

private:
    QPointer<QWidget> window_;
    QObject const* ignored_ = nullptr;
};
