#include "platform/qt/widgets/button_widgets.h"

#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/held_keys.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {

/// Keys that are no press of the button: Return, which is the window's, and repeats.
bool IsForOthers(QKeyEvent const& event)
{
    return IsReturn(event) || (event.key() == Qt::Key_Space && IsRepeat(event));
}

} // namespace

CheckBoxWidget::CheckBoxWidget(QWidget* parent) : QCheckBox(parent)
{
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QCheckBox::toggled, this, [this](bool isOn) {
        if (IsDialogOpen()) {
            blockSignals(true);
            setChecked(!isOn);
            blockSignals(false);
        }
    });
}

void CheckBoxWidget::keyPressEvent(QKeyEvent* event)
{
    if (IsForOthers(*event)) {
        event->ignore();
    } else {
        QCheckBox::keyPressEvent(event);
    }
}

PushButtonWidget::PushButtonWidget(QWidget* parent) : QPushButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void PushButtonWidget::keyPressEvent(QKeyEvent* event)
{
    if (IsForOthers(*event)) {
        event->ignore();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

void PushButtonWidget::mousePressEvent(QMouseEvent* event)
{
    bool const isLeft = event->button() == Qt::LeftButton;
    bool const isKept = isLeft && mouseDown && mouseDown(event->position().toPoint());
    if (!isKept && !(isLeft && followsPress(*event))) {
        QPushButton::mousePressEvent(event);
    }
}

void PushButtonWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

/// The press belongs to a double or triple click that has acted already.
bool PushButtonWidget::followsPress(QMouseEvent const& event)
{
    auto const interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    quint64 const last = std::exchange(lastPress_, event.timestamp());
    bool const isSoon = last != 0 && event.timestamp() - last < interval;
    return hasAction && hasAction() && (isSoon || event.type() == QEvent::MouseButtonDblClick);
}
