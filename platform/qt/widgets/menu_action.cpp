#include "platform/qt/widgets/menu_action.h"

#include <QAction>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

QAction* FindAction(QList<QAction*> const& actions, QKeySequence const& keys)
{
    for (QAction* const action : actions) {
        if (action->shortcut() == keys) {
            return action;
        }
        if (action->menu() != nullptr) {
            if (QAction* const inside = FindAction(action->menu()->actions(), keys)) {
                return inside;
            }
        }
    }
    return nullptr;
}

} // namespace

QAction* MenuActionOf(QWidget const& window, QKeyEvent const& event)
{
    auto const* const top = qobject_cast<QMainWindow const*>(&window);
    if (top == nullptr || event.modifiers() == Qt::NoModifier) {
        return nullptr;
    }
    return FindAction(top->menuBar()->actions(), QKeySequence(event.keyCombination()));
}
