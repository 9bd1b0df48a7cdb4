#include "platform/qt/widgets/top_level.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/focus_order.h"
#include "platform/qt/widgets/form_style.h"
#include "platform/qt/widgets/held_keys.h"
#include "platform/qt/widgets/line_edit.h"
#include "platform/qt/widgets/menu_action.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>

namespace {

QPointer<TopLevel>& Front()
{
    static QPointer<TopLevel> front;
    return front;
}

/// Scrolls a window's content by wheel, by Page Up and Page Down where the focused control has no use for them,
/// and with the focus. It is no stop of the Tab key.
class ContentScroller final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        bool const isPage = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
        if (isPage) {
            QScrollArea::keyPressEvent(event);
        } else {
            event->ignore();
        }
    }
};

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

TopLevel::TopLevel() : content_(new QWidget(this)), focusFrame_(new QFocusFrame(content_))
{
    setCentralWidget(content_);
    focusFrame_->setStyle(&FormStyle());
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr) {
            noteFocus(now);
        }
    });
}

void TopLevel::fitToScreen()
{
    constexpr QSize kFrame(16, 48); // pixels that a title bar and its frame may take
    int const menuHeight = menuBar()->sizeHint().height();
    QSize const room = screen()->availableSize() - kFrame - QSize(0, menuHeight);
    QSize const wanted = content_->size();
    if (wanted.width() <= room.width() && wanted.height() <= room.height()) {
        return;
    }
    scrollArea_ = new ContentScroller(this);
    scrollArea_->setStyle(content_->style());
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setFocusPolicy(Qt::NoFocus);
    scrollArea_->setPalette(content_->palette());
    scrollArea_->setWidget(content_);
    int const bar = scrollArea_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QSize const bars(wanted.height() > room.height() ? bar : 0, wanted.width() > room.width() ? bar : 0);
    scrollArea_->setFixedSize((wanted + bars).boundedTo(room));
    setCentralWidget(scrollArea_);
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
    if (scrollArea_ != nullptr) { // first: around a control that is out of sight the frame would stay hidden
        scrollArea_->ensureWidgetVisible(control);
    }
    focusFrame_->setWidget(control); // which makes it a child of the window, whose colours are the desktop's
    focusFrame_->setPalette(content_->palette());
    MenuAction::endIgnoring();
    if (auto* const field = dynamic_cast<LineEdit*>(control)) {
        field->enter();
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
        static_cast<LineEdit*>(field)->sealUndoHistory();
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
