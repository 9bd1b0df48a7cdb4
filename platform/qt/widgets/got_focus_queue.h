#pragma once

#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>

/// The pending GotFocus events. They are delivered soon after the event that moved the focus, and before anything
/// else that the user does, so that a message box that answers one never opens in the middle of a click.
class GotFocusQueue final {
public:
    /// The field has gained the focus; its handler is called at the next delivery.
    void add(QWidget* field, std::function<void()> const& gotFocus);
    void deliver();
    /// Delivers them if this event has to wait for them. To be called before its receiver gets it.
    void deliverBefore(QObject const& receiver, QEvent const& event);

private:
    struct Gain {
        QPointer<QWidget> field;
        std::function<void()> gotFocus;
    };

    std::deque<Gain> pending_; ///< in the order in which the fields gained the focus
    bool isDelivering_ = false;
};
