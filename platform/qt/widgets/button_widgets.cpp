#include "platform/qt/widgets/button_widgets.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/held_keys.h"

#include <QGuiApplication>
#include <QStyleHints>

bool IsLeftToWindow(QKeyEvent const& event)
{
    return IsReturn(event) || (event.key() == Qt::Key_Space && IsRepeat(event));
}

void PushButtonWidget::mousePressEvent(QMouseEvent* event)
{
    bool const isLeft = event->button() == Qt::LeftButton;
    bool const isHandled = isLeft && mouseDown && mouseDown(event->position().toPoint());
    if (!isHandled && !(isLeft && isTooSoon(*event))) {
        QPushButton::mousePressEvent(event);
    }
}

void PushButtonWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

/// Whether the press belongs to a double or triple click that has acted already. What the toolkit calls a double click
/// does not tell: it counts from the press before, even if that one did nothing.
bool PushButtonWidget::isTooSoon(QMouseEvent const& event)
{
    auto const interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    bool const isSoon = lastPress_ != 0 && event.timestamp() - lastPress_ < interval;
    if (isSoon && hasAction && hasAction()) {
        return true;
    }
    lastPress_ = event.timestamp();
    return false;
}
