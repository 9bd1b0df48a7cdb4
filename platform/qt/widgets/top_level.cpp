#include "platform/qt/widgets/top_level.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/focus_order.h"
#include "platform/qt/widgets/held_keys.h"
#include "platform/qt/widgets/line_edit.h"
#include "platform/qt/widgets/menu_action.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace {

QPointer<TopLevel>& Front()
{
    static QPointer<TopLevel> front;
    return front;
}

/// Opens a menu as a click on its title does, with its first item chosen.
void OpenMenu(QMenuBar& bar, QAction& title)
{
    bar.setActiveAction(&title);
    for (QAction* const item : title.menu()->actions()) {
        if (item->isVisible() && item->isEnabled() && !item->isSeparator()) {
            title.menu()->setActiveAction(item);
            break;
        }
    }
}

} // namespace

TopLevel::TopLevel() : content_(new QWidget(this))
{
    setCentralWidget(content_);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr) {
            noteFocus(now);
        }
    });
}

void TopLevel::noteFocus(QWidget* control)
{
    if (control == focusedControl_ || !content_->isAncestorOf(control)) {
        return;
    }
    if (auto* const left = dynamic_cast<LineEdit*>(focusedControl_.data())) {
        left->leave();
    }
    focusedControl_ = control;
    MenuAction::endIgnoring();
    if (auto* const field = dynamic_cast<LineEdit*>(control)) {
        FocusOrder::instance().add(field, field->gotFocus);
    }
    bringMenuBarUpToDate();
}

TopLevel* TopLevel::front()
{
    return Front();
}

void TopLevel::leaveFront()
{
    if (front() == this) {
        Front() = nullptr;
    }
}

void TopLevel::beginCommand()
{
    MenuAction::endIgnoring();
    for (QLineEdit* const field : content_->findChildren<QLineEdit*>()) {
        static_cast<LineEdit*>(field)->endTyping();
    }
}

void TopLevel::addMenuKeys()
{
#ifndef Q_OS_MACOS // which opens menus in a way of its own
    QString first = QStringLiteral("F10");
    for (QAction* const title : menuBar()->actions()) {
        if (!title->isVisible() || title->menu() == nullptr) {
            continue;
        }
        auto const open = [this, title] { OpenMenu(*menuBar(), *title); };
        new QShortcut(QKeySequence(QStringLiteral("Alt+") + title->text().left(1)), this, open);
        if (!first.isEmpty()) {
            new QShortcut(QKeySequence(std::exchange(first, QString())), this, open);
        }
    }
#endif
}

bool TopLevel::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        Front() = this;
        bringMenuBarUpToDate();
    }
    return QMainWindow::event(event);
}

/// Only the desktop sends this event: the program hides a window that it closes.
void TopLevel::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (closeRequested) {
        closeRequested();
    }
}

void TopLevel::keyPressEvent(QKeyEvent* event)
{
    bool const isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (IsReturn(*event) && isPlain) {
        if (defaultButton != nullptr && !IsRepeat(*event)) {
            defaultButton->click();
        }
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void TopLevel::bringMenuBarUpToDate()
{
    if (updateMenuBar && front() == this) {
        updateMenuBar();
    }
}
