#include "platform/qt/widgets/menu_widgets.h"

#include <QKeyEvent>

/// The bar watches its window. What it does with this event is to wait for Alt alone.
bool MenuBarWidget::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() != QEvent::ShortcutOverride && QMenuBar::eventFilter(watched, event);
}

/// The toolkit's own Escape would leave the keyboard in the bar, where nothing shows it.
void MenuWidget::keyPressEvent(QKeyEvent* event)
{
    bool const isLeft = event->matches(QKeySequence::Cancel) || event->key() == Qt::Key_F10;
    if (!isLeft) {
        QMenu::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        close();
    }
}
