#include "platform/qt/widgets/got_focus_queue.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool MovesFocus(QKeyEvent const& event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

} // namespace

void GotFocusQueue::add(QWidget* field, std::function<void()> const& gotFocus)
{
    pending_.push_back({field, gotFocus});
    QMetaObject::invokeMethod(qApp, [this] { deliver(); }, Qt::QueuedConnection);
}

void GotFocusQueue::deliver()
{
    if (isDelivering_) { // a handler's message box is open
        return;
    }
    isDelivering_ = true;
    while (!pending_.empty()) {
        Gain const gain = pending_.front();
        pending_.pop_front();
        if (gain.field != nullptr) {
            gain.gotFocus();
        }
    }
    isDelivering_ = false;
}

/// A key that moves the focus on goes first, since a box in front of it would keep the next field from selecting
/// its text. A mouse press is seen when it reaches its window: once it reaches a field, that field has the focus
/// already, and the press must be complete before its GotFocus.
void GotFocusQueue::deliverBefore(QObject const& receiver, QEvent const& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!MovesFocus(static_cast<QKeyEvent const&>(event))) {
            deliver();
        }
        break;
    case QEvent::InputMethod:
        deliver();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (receiver.isWindowType()) {
            deliver();
        }
        break;
    default:
        break;
    }
}
