#pragma once

#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>

class QWidget;

/// Delivers the pending GotFocus events: soon after the event that moved the focus, and before anything else
/// that the user does, so that a message box that answers one never opens in the middle of a click. There is
/// one object, for the whole application.
class FocusOrder final : public QObject {
public:
    explicit FocusOrder(QObject* application);
    ~FocusOrder() override;
    FocusOrder(FocusOrder const&) = delete;
    FocusOrder& operator=(FocusOrder const&) = delete;

    static FocusOrder& instance();

    /// The field has gained the focus; its handler is called at the next delivery.
    void add(QWidget* field, std::function<void()> const& gotFocus);
    void deliver();

    /// Sees each event before its receiver does.
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Gain {
        QPointer<QWidget> field;
        std::function<void()> gotFocus;
    };

    std::deque<Gain> pending_; ///< in the order in which the fields gained the focus
    bool isDelivering_ = false;
};
