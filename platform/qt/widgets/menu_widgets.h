#pragma once

#include <QMenu>
#include <QMenuBar>

/// A menu bar that takes the keyboard only while one of its menus is open. QMenuBar also takes it when Alt is tapped.
class MenuBarWidget final : public QMenuBar {
public:
    using QMenuBar::QMenuBar;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// A menu of the bar. Escape and F10 close it and give the keyboard back to the control that had it.
class MenuWidget final : public QMenu {
public:
    using QMenu::QMenu;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
