#include "platform/qt/top_level.h"

#include "platform/qt/guard.h"
#include "platform/qt/line_edit.h"
#include "platform/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>

#include <deque>

namespace {

QPointer<QWidget>& Front()
{
    static QPointer<QWidget> front;
    return front;
}

/// The fields whose gain of the focus has not been told yet, in the order in which they gained it.
std::deque<QPointer<LineEdit>>& Pending()
{
    static std::deque<QPointer<LineEdit>> pending;
    return pending;
}

bool MovesFocus(QEvent const& event)
{
    int const key = static_cast<QKeyEvent const&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

/// Sees every event of the user before its receiver does. A key that moves the focus on goes first, since a box
/// in front of it would keep the next field from selecting its text. Of the mouse only the windows are looked at:
/// when a press reaches a field, the field has the focus already and the press must be complete first.
class EventOrder final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (!MovesFocus(*event)) {
                TopLevel::tellFocus();
            }
            break;
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
        case QEvent::Quit: // the desktop ends the program, at a log-out for one; the windows are not asked
            QCoreApplication::exit(0);
            return true;
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
    if (auto* const left = dynamic_cast<LineEdit*>(focusedControl_.data())) {
        left->leave();
    }
    focusedControl_ = widget;
    if (auto* const field = dynamic_cast<LineEdit*>(widget)) {
        Pending().emplace_back(field);
        QMetaObject::invokeMethod(this, &TopLevel::tellFocus, Qt::QueuedConnection);
    }
    bringMenuBarUpToDate();
}

void TopLevel::tellFocus()
{
    static bool isTelling = false; // while one field is told, its message box may be up
    if (isTelling) {
        return;
    }
    isTelling = true;
    while (!Pending().empty()) {
        QPointer<LineEdit> const field = Pending().front();
        Pending().pop_front();
        if (field != nullptr && field->gotFocus) {
            Guarded(field->gotFocus);
        }
    }
    isTelling = false;
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
