#include "platform/qt/widgets/top_level.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/form_style.h"
#include "platform/qt/widgets/line_edit.h"
#include "platform/qt/widgets/menu_widgets.h"
#include "platform/qt/widgets/program.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>

namespace {

/// Scrolls a window's content with the wheel, with Page Up and Page Down if the focused control ignores them, and when
/// the focus moves. Tab does not stop here.
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

/// Opens a menu as a click on its title does, and selects its first item.
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
    setMenuBar(new MenuBarWidget(this));
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
    constexpr QSize kFrame(16, 48); // pixels reserved for the title bar and frame
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
    if (scrollArea_ != nullptr) { // first, since the frame of a hidden control stays hidden
        scrollArea_->ensureWidgetVisible(control);
    }
    focusFrame_->setWidget(control); // makes it a child of the window, which has the desktop's colours
    focusFrame_->setPalette(content_->palette());
    Program::instance().front.heedShortcuts();
    if (auto* const field = dynamic_cast<LineEdit*>(control)) {
        field->enter();
        Program::instance().gotFocus.add(field, field->gotFocus);
    }
    bringMenuBarUpToDate();
}

void TopLevel::beginCommand()
{
    Program::instance().front.heedShortcuts();
    for (QLineEdit* const field : content_->findChildren<QLineEdit*>()) {
        static_cast<LineEdit*>(field)->sealUndoHistory();
    }
}

void TopLevel::addMenuKeys()
{
#ifndef Q_OS_MACOS // which has its own keys for menus
    auto const add = [this](QString const& keys, QAction& title) {
        auto* const shortcut =
            new QShortcut(QKeySequence(keys), this, [this, &title] { OpenMenu(*menuBar(), title); });
        shortcut->setAutoRepeat(false); // F10 closes its menu again
    };
    QString first = QStringLiteral("F10");
    for (QAction* const title : menuBar()->actions()) {
        if (!title->isVisible() || title->menu() == nullptr) {
            continue;
        }
        add(QStringLiteral("Alt+") + title->text().left(1), *title);
        if (!first.isEmpty()) {
            add(std::exchange(first, QString()), *title);
        }
    }
#endif
}

bool TopLevel::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        Program::instance().front.enter(*this);
        bringMenuBarUpToDate();
    }
    return QMainWindow::event(event);
}

/// Only the desktop sends this event; Window::Close hides the window instead.
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
        if (defaultButton != nullptr && !event->isAutoRepeat()) {
            defaultButton->click();
        }
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void TopLevel::bringMenuBarUpToDate()
{
    if (updateMenuBar && Program::instance().front.window() == this) {
        updateMenuBar();
    }
}
