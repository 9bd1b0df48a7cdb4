#include "platform/qt/widgets/focus_order.h"

#include "platform/qt/widgets/held_keys.h"

#include <QKeyEvent>
#include <QWidget>

#include <cassert>

namespace {

FocusOrder* current = nullptr;

bool MovesFocus(QKeyEvent const& event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

} // namespace

FocusOrder::FocusOrder(QObject* application) : QObject(application)
{
    current = this;
    application->installEventFilter(this);
}

FocusOrder::~FocusOrder()
{
    current = nullptr;
}

FocusOrder& FocusOrder::instance()
{
    assert(current != nullptr);
    return *current;
}

void FocusOrder::add(QWidget* field, std::function<void()> const& gotFocus)
{
    pending_.push_back({field, gotFocus});
    QMetaObject::invokeMethod(this, &FocusOrder::deliver, Qt::QueuedConnection);
}

void FocusOrder::deliver()
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
bool FocusOrder::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
        NoteKey(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        NoteKey(*static_cast<QKeyEvent*>(event));
        if (!MovesFocus(*static_cast<QKeyEvent*>(event))) {
            deliver();
        }
        break;
    case QEvent::InputMethod:
        deliver();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (receiver->isWindowType()) {
            deliver();
        }
        break;
    default:
        break;
    }
    return false;
}
