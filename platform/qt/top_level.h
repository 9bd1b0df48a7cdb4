#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

class LineEdit;
class Window;

/// The desktop's side of a window. It knows which control has the focus, and tells a field that it gained
/// it: soon after, when the event that moved the focus is over, but before anything else that the user does.
class TopLevel final : public QMainWindow {
public:
    explicit TopLevel(Window& owner);
    ~TopLevel() override;
    TopLevel(TopLevel const&) = delete;
    TopLevel& operator=(TopLevel const&) = delete;

    [[nodiscard]] QWidget& content() const { return *content_; }
    [[nodiscard]] Window& owner() const { return owner_; }
    /// The control that has the window's keyboard focus, or had it when the window was last in front.
    [[nodiscard]] QWidget* focusedControl() const { return focusedControl_; }

    /// The window's focus is now here; the same control again is no news.
    void noteFocus(QWidget* widget);
    /// Tells the gains of the focus that wait to be told.
    static void tellFocus();

    /// The window that has or last had the desktop's attention; null if there is none.
    static TopLevel* front();
    /// The window has closed; until the next one comes to the front there is none.
    void leaveFront();
    /// Follows the focus through the application and keeps the order of events.
    static void followFocus();
    /// A button or menu command begins: no field takes back typing from before it.
    void beginCommand();

    QPointer<QPushButton> defaultButton;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void bringMenuBarUpToDate();

    Window& owner_;
    QWidget* content_;
    QPointer<QWidget> focusedControl_;
};
