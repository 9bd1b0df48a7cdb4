#pragma once

class QAction;
class QKeyEvent;
class QWidget;

/// The action in this window's menu bar that has this key as its shortcut, even if disabled; null if there is none.
QAction* MenuActionOf(QWidget const& window, QKeyEvent const& event);
