#pragma once

#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>

#include <functional>

/// A check box that leaves Return to its window, whatever the desktop's style makes of it. A click leaves the
/// focus where it is, and Space held down toggles it once.
class CheckBoxWidget final : public QCheckBox {
public:
    explicit CheckBoxWidget(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A button that does the same, and that a double click presses once.
class PushButtonWidget final : public QPushButton {
public:
    explicit PushButtonWidget(QWidget* parent);

    /// The left mouse button goes down here, also for the second time in a double click; true keeps the press
    /// from the button.
    std::function<bool(QPoint point)> mouseDown;
    std::function<bool()> hasAction; ///< without one each press of a double click counts

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool followsPress(QMouseEvent const& event);

    quint64 lastPress_ = 0; ///< time stamp of the last press in milliseconds; 0 if it had none
};
