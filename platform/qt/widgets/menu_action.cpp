#include "platform/qt/widgets/menu_action.h"

#include "platform/qt/widgets/held_keys.h"

#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace {

QAction const* ignoredOnce = nullptr;

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

void MenuAction::ignoreNextShortcut()
{
    ignoredOnce = this;
}

void MenuAction::endIgnoring()
{
    ignoredOnce = nullptr;
}

QAction* MenuAction::of(QWidget const& window, QKeyEvent const& event)
{
    auto const* const top = qobject_cast<QMainWindow const*>(&window);
    if (top == nullptr || event.modifiers() == Qt::NoModifier) {
        return nullptr;
    }
    return FindAction(top->menuBar()->actions(), QKeySequence(event.keyCombination()));
}

bool MenuAction::event(QEvent* event)
{
    bool const isIgnored = event->type() == QEvent::Shortcut &&
                           (IsLastPressRepeat() || std::exchange(ignoredOnce, nullptr) == this);
    return isIgnored || QAction::event(event);
}
