#pragma once

#include <QCheckBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include <functional>

/// A button or check box that leaves Return to its window, whatever the desktop's theme makes of it. A click
/// leaves the focus where it is.
template <class Base>
class LeavesReturn : public Base {
public:
    explicit LeavesReturn(QWidget* parent) : Base(parent) { Base::setFocusPolicy(Qt::TabFocus); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            event->ignore();
        } else {
            Base::keyPressEvent(event);
        }
    }
};

using CheckBoxWidget = LeavesReturn<QCheckBox>;

/// A button that tells the moment at which the mouse goes down on it.
class PushButtonWidget final : public LeavesReturn<QPushButton> {
public:
    using LeavesReturn::LeavesReturn;

    std::function<bool(QPoint place)> mouseDown; ///< true keeps the press from the button

protected:
    /// The second press of a double click comes here too.
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || !mouseDown(event->position().toPoint())) {
            QPushButton::mousePressEvent(event);
        }
    }
};
