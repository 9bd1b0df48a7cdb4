#pragma once

#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>

#include <functional>

/// Whether a button leaves this key to its window: Return, and Space that is only held down.
bool IsLeftToWindow(QKeyEvent const& event);

/// A button of the toolkit that leaves Return to its window, whatever the desktop's style makes of it. A click does not
/// move the focus here, and holding Space presses it once.
template <class ToolkitButton>
class FormButton : public ToolkitButton {
public:
    explicit FormButton(QWidget* parent) : ToolkitButton(parent) { this->setFocusPolicy(Qt::TabFocus); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (IsLeftToWindow(*event)) {
            event->ignore();
        } else {
            ToolkitButton::keyPressEvent(event);
        }
    }
};

using CheckBoxWidget = FormButton<QCheckBox>;

/// A push button that a double click presses once.
class PushButtonWidget final : public FormButton<QPushButton> {
public:
    using FormButton::FormButton;

    /// Called when the left mouse button goes down, for the second time in a double click too. Returns true to stop
    /// the button from seeing the press.
    std::function<bool(QPoint position)> mouseDown;
    std::function<bool()> hasAction; ///< if not, each press of a double click counts

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool isTooSoon(QMouseEvent const& event);

    quint64 lastPress_ = 0; ///< time stamp in milliseconds of the last press that was not too soon; 0 if none
};
