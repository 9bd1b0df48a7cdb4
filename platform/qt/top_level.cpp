#include "platform/qt/top_level.h"

#include "platform/qt/guard.h"
#include "platform/qt/line_edit.h"
#include "platform/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>

#include <utility>

namespace {

QPointer<QWidget>& Front()
{
    static QPointer<QWidget> front;
    return front;
}

/// The field whose gain of the focus has not been told yet.
QPointer<LineEdit>& Pending()
{
    static QPointer<LineEdit> pending;
    return pending;
}

/// Sees every event of the user before its receiver does. Of the mouse only the windows are looked at: when
/// a press reaches a field, the field has the focus already and the press must be complete first.
class EventOrder final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::InputMethod:
            TopLevel::tellFocus();
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            if (receiver->isWindowType()) {
                TopLevel::tellFocus();
            }
            break;
        default:
            break;
        }
        return false;
    }
};

} // namespace

TopLevel::TopLevel(Window& owner) : owner_(owner), content_(new QWidget(this))
{
    setCentralWidget(content_);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TopLevel::~TopLevel() = default;

void TopLevel::noteFocus(QWidget* widget)
{
    if (widget == focusedControl_ || !content_->isAncestorOf(widget)) {
        return;
    }
    focusedControl_ = widget;
    Pending() = dynamic_cast<LineEdit*>(widget);
    if (Pending() != nullptr) {
        QMetaObject::invokeMethod(this, &TopLevel::tellFocus, Qt::QueuedConnection);
    }
    bringMenuBarUpToDate();
}

void TopLevel::tellFocus()
{
    QPointer<LineEdit> const field = std::exchange(Pending(), nullptr);
    if (field != nullptr && field->gotFocus) {
        Guarded(field->gotFocus);
    }
}

TopLevel* TopLevel::front()
{
    return static_cast<TopLevel*>(Front().data());
}

void TopLevel::leaveFront()
{
    if (front() == this) {
        Front() = nullptr;
    }
}

void TopLevel::followFocus()
{
    qApp->installEventFilter(new EventOrder(qApp));
    QObject::connect(qApp, &QApplication::focusChanged, qApp, [](QWidget*, QWidget* now) {
        if (now != nullptr) {
            if (auto* const top = dynamic_cast<TopLevel*>(now->window())) {
                top->noteFocus(now);
            }
        }
    });
}

void TopLevel::beginCommand()
{
    for (QLineEdit* const field : content_->findChildren<QLineEdit*>()) {
        static_cast<LineEdit*>(field)->forgetTyping();
    }
}

bool TopLevel::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        Front() = this;
        bringMenuBarUpToDate();
    }
    return QMainWindow::event(event);
}

/// Only the desktop sends this event: the program closes a window by Window::Close.
void TopLevel::closeEvent(QCloseEvent* event)
{
    event->ignore();
    owner_.CloseByDesktop();
}

void TopLevel::keyPressEvent(QKeyEvent* event)
{
    bool const isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    bool const isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (isReturn && isPlain) {
        if (!event->isAutoRepeat() && defaultButton != nullptr) {
            defaultButton->click();
        }
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void TopLevel::bringMenuBarUpToDate()
{
    if (owner_.menuBar_ != nullptr && front() == this) {
        owner_.menuBar_->Update();
    }
}
