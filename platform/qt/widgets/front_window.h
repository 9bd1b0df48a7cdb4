#pragma once

#include <QPointer>
#include <QWidget>

class TopLevel;

/// The window in front, and the menu command whose shortcut does nothing there when it is pressed next.
class FrontWindow final {
public:
    /// The window that is or last was active; null if there is none.
    [[nodiscard]] TopLevel* window() const;
    /// This window is active now.
    void enter(TopLevel& window);
    /// The window has closed; until another one becomes active there is none in front.
    void leave(TopLevel const& window);

    /// The next press of this command's shortcut does nothing, unless something is typed, another command is chosen
    /// or the focus moves before it. Choosing the command itself always acts.
    void ignoreNextShortcut(QObject const& command) { ignored_ = &command; }
    /// The next press of every shortcut acts again.
    void heedShortcuts() { ignored_ = nullptr; }
    /// Whether this press of a command's shortcut does nothing. The press after it acts.
    [[nodiscard]] bool ignoresShortcut(QObject const& command);

private:
    QPointer<QWidget> window_;
    QObject const* ignored_ = nullptr;
};
