#pragma once

class QAction;
class QKeyEvent;
class QWidget;

/// The action in the menu bar of this window that has this key as its shortcut, enabled or not; null if there is none.
QAction* MenuActionOf(QWidget const& window, QKeyEvent const& event);
