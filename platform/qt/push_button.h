#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include <functional>

/// A button that tells the moment at which the mouse goes down on it, and leaves Return to its window.
class PushButtonWidget final : public QPushButton {
public:
    explicit PushButtonWidget(QWidget* parent) : QPushButton(parent) { setFocusPolicy(Qt::TabFocus); }

    std::function<bool(QPoint place)> mouseDown; ///< true keeps the press from the button

protected:
    /// The second press of a double click comes here too.
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || !mouseDown(event->position().toPoint())) {
            QPushButton::mousePressEvent(event);
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            event->ignore();
        } else {
            QPushButton::keyPressEvent(event);
        }
    }
};
