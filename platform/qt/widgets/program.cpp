#include "platform/qt/widgets/program.h"

#include <QKeyEvent>

namespace {

/// A press marked as the repeat of a key that is held down, as the toolkit marks those that it recognises.
class MarkedRepeat final : public QKeyEvent {
public:
    explicit MarkedRepeat(QKeyEvent const& press) : QKeyEvent(press) { m_autoRepeat = true; }
};

bool IsKey(QEvent const& event)
{
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
           event.type() == QEvent::ShortcutOverride;
}

bool IsInput(QEvent const& event)
{
    switch (event.type()) {
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchEnd:
        return true;
    default:
        return IsKey(event);
    }
}

} // namespace

/// A repeat is marked here, before an assistive program gets the key: where one listens, the receiver is sent a copy,
/// which has the mark and no time stamp. A shortcut is triggered right after its key event and does not know the mark.
bool Program::notify(QObject* receiver, QEvent* event)
{
    if (!IsInput(*event)) {
        return QApplication::notify(receiver, event);
    }
    QPointer<QObject> const target(receiver);
    gotFocus.deliverBefore(*receiver, *event);
    if (target.isNull()) { // a handler has closed its window
        return true;
    }
    if (event->type() == QEvent::Shortcut && (keys.isLastPressRepeat() || front.ignoresShortcut(*receiver))) {
        return true;
    }
    ++inputDepth_;
    bool const result = IsKey(*event) ? notifyKey(receiver, static_cast<QKeyEvent*>(event))
                                      : QApplication::notify(receiver, event);
    --inputDepth_;
    return result;
}

bool Program::notifyKey(QObject* receiver, QKeyEvent* event)
{
    keys.note(*event);
    if (event->type() == QEvent::KeyRelease || !keys.isLastPressRepeat()) {
        return QApplication::notify(receiver, event);
    }
    MarkedRepeat repeat(*event);
    bool const result = QApplication::notify(receiver, &repeat);
    event->setAccepted(repeat.isAccepted());
    return result;
}

bool Program::event(QEvent* event)
{
    if (event->type() == QEvent::Quit && quitRequested) {
        quitRequested();
        return true;
    }
    return QApplication::event(event);
}

void Program::runCommand(std::function<void()> const& command)
{
    if (inputDepth_ > 0) {
        command();
    } else {
        QMetaObject::invokeMethod(this, command, Qt::QueuedConnection);
    }
}
