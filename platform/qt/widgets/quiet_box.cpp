#include "platform/qt/widgets/quiet_box.h"

#include "platform/qt/widgets/program.h"

#include <QAccessible>
#include <QKeyEvent>

namespace {

constexpr int kQuietTime = 500; // milliseconds

/// A letter or digit meant for a field, or a held key.
bool IsStray(QKeyEvent const& event)
{
    bool const isPlain = !(event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier));
    bool const isText = !event.text().isEmpty() && event.text().at(0).isPrint();
    return event.isAutoRepeat() || (isPlain && isText && event.key() != Qt::Key_Space);
}

} // namespace

QuietBox::QuietBox(QWidget* parent) : QMessageBox(parent), quiet_(this)
{
    quiet_.setSingleShot(true);
    quiet_.setInterval(kQuietTime);
    quiet_.setTimerType(Qt::PreciseTimer);
    qApp->installEventFilter(this);
}

QuietBox::~QuietBox() = default;

void QuietBox::showEvent(QShowEvent* event)
{
    quiet_.start();
    QMessageBox::showEvent(event);
#ifdef Q_OS_WIN // where the toolkit sounds the bell as long as an assistive program listens
    if (QAccessible::isActive()) {
        return;
    }
#endif
    QApplication::beep();
}

/// Sees the events of the whole application: while the box is open, every key goes to it.
bool QuietBox::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        auto const& key = *static_cast<QKeyEvent*>(event);
        bool const isDropped = !takesKeys(key) || (event->type() == QEvent::KeyPress && IsStray(key));
        event->setAccepted(isDropped);
        return isDropped;
    }
    case QEvent::Shortcut:
        return !isOpen_;
    default:
        return false;
    }
}

/// The time stamps matter too: they show how fast keys were typed when the program was too busy to look.
bool QuietBox::takesKeys(QKeyEvent const& event)
{
    bool const isSoon =
        event.timestamp() != 0 && Program::instance().keys.pauseBeforeLastPress() < kQuietTime;
    isOpen_ = isOpen_ || (!quiet_.isActive() && !isSoon);
    if (!isOpen_) {
        quiet_.start();
    }
    return isOpen_;
}
