#pragma once

#include <QAction>

class QKeyEvent;

/// The action behind a menu item. Its shortcut acts once for each real press, however long the key is held.
class MenuAction final : public QAction {
public:
    /// The next press of the shortcut does nothing, unless something is typed, another command is chosen or
    /// the focus moves before it. Choosing the item itself always acts.
    void ignoreNextShortcut();
    /// The next press of every shortcut acts again.
    static void endIgnoring();

    /// The action in the menu bar of this window that has this key as its shortcut, enabled or not; null if
    /// there is none.
    static QAction* of(QWidget const& window, QKeyEvent const& event);

protected:
    bool event(QEvent* event) override;
};
