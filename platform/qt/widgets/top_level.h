#pragma once

#include <QFocusFrame>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

#include <functional>
#include <map>
#include <string>

class QScrollArea;

/// The QMainWindow behind a Window: its menu bar and commands, its close button, its default button, and the control
/// that has the focus.
class TopLevel final : public QMainWindow {
public:
    TopLevel();

    /// Handlers of menu items while this window is in front, by item name.
    std::map<std::string, std::function<void()>, std::less<>> menuHandlers;
    std::function<void()> enableMenuItems; ///< enables the window's own items
    std::function<void()> updateMenuBar;   ///< called when items may have to be enabled or disabled
    std::function<void()> closeRequested;  ///< the user closes the window; empty if it has no close button
    QPointer<QPushButton> defaultButton;   ///< pressed by Return and Enter

    [[nodiscard]] QWidget& content() const { return *content_; }
    /// Makes the content scroll if the screen is smaller.
    void fitToScreen();
    /// The control that has the window's focus, also while another window is in front.
    [[nodiscard]] QWidget* focusedControl() const { return focusedControl_; }
    /// Records that the focus moved to this control. Does nothing if it already has the focus.
    void noteFocus(QWidget* control);

    /// Called when a button or menu command starts. Earlier typing can no longer be undone.
    void beginCommand();
    /// Adds the keys that open menus: Alt with the first letter of a title, and F10 for the first menu.
    void addMenuKeys();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void bringMenuBarUpToDate();

    QWidget* content_;
    QScrollArea* scrollArea_ = nullptr; ///< around the content; null if the screen is large enough
    QFocusFrame* focusFrame_;
    QPointer<QWidget> focusedControl_;
};
