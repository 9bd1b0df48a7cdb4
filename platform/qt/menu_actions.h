#pragma once

class QAction;
class QKeyEvent;
class QWidget;

/// The action in a window's menu bar that has this key as its shortcut, on or off; null if there is none.
QAction* MenuActionOf(QWidget const& window, QKeyEvent const& event);
