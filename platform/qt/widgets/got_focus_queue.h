#pragma once

#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>

/// The pending GotFocus events. They are delivered soon after the event that moved the focus, and before the user's
/// next input, so that a message box opened by a handler never interrupts a click.
class GotFocusQueue final {
public:
    /// Queues the event of a field that has gained the focus.
    void add(QWidget* field, std::function<void()> const& gotFocus);
    void deliver();
    /// Delivers them if this event has to wait for them. Called before its receiver gets it.
    void deliverBefore(QObject const& receiver, QEvent const& event);

private:
    struct Gain {
        QPointer<QWidget> field;
        std::function<void()> gotFocus;
    };

    std::deque<Gain> pending_; ///< in the order in which the fields gained the focus
    bool isDelivering_ = false;
};
