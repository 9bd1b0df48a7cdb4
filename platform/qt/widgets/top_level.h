#pragma once

#include <QFocusFrame>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

#include <functional>
#include <map>
#include <string>

class QScrollArea;

/// The QMainWindow behind a window: its menu bar and what the commands do there, its close button, its default
/// button, and which of its controls has the keyboard focus.
class TopLevel final : public QMainWindow {
public:
    TopLevel();

    /// What the menu items do while this window is in front, by the item's name.
    std::map<std::string, std::function<void()>, std::less<>> menuHandlers;
    std::function<void()> enableMenuItems; ///< the window switches its items on or off
    std::function<void()> updateMenuBar;   ///< what is on in the bar may have changed
    std::function<void()> closeRequested;  ///< by the close button; empty in a window that has none
    QPointer<QPushButton> defaultButton;   ///< what Return and Enter press

    [[nodiscard]] QWidget& content() const { return *content_; }
    /// Makes the content scroll if the screen has no room for all of it.
    void fitToScreen();
    /// The control that has the window's keyboard focus, or had it when the window was last in front.
    [[nodiscard]] QWidget* focusedControl() const { return focusedControl_; }
    /// The window's focus is now here. The same control again is no news.
    void noteFocus(QWidget* control);

    /// A button or menu command begins: typing from before it can no longer be undone.
    void beginCommand();
    /// Opens the menus with Alt and the first letter of their titles, and the first one with F10.
    void addMenuKeys();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void bringMenuBarUpToDate();

    QWidget* content_;
    QScrollArea* scrollArea_ = nullptr; ///< around the content, on a screen that is too small for it
    QFocusFrame* focusFrame_;
    QPointer<QWidget> focusedControl_;
};
