#include "platform/qt/widgets/menu_widgets.h"

#include <QKeyEvent>

/// QMenuBar watches its window for this event to see Alt being tapped.
bool MenuBarWidget::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() != QEvent::ShortcutOverride && QMenuBar::eventFilter(watched, event);
}

/// Otherwise Escape would leave the keyboard in the bar, where nothing shows it.
void MenuWidget::keyPressEvent(QKeyEvent* event)
{
    bool const isLeft = event->matches(QKeySequence::Cancel) || event->key() == Qt::Key_F10;
    if (!isLeft) {
        QMenu::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        close();
    }
}
