#include "platform/qt/widgets/program.h"

#include <QEvent>

namespace {

int userEvents = 0; // being handled, one inside the other

bool IsOfUser(QEvent const& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchEnd:
        return true;
    default:
        return false;
    }
}

} // namespace

bool Program::notify(QObject* receiver, QEvent* event)
{
    int const count = IsOfUser(*event) ? 1 : 0;
    userEvents += count;
    bool const result = QApplication::notify(receiver, event);
    userEvents -= count;
    return result;
}

void Program::runCommand(std::function<void()> const& command)
{
    if (userEvents > 0) {
        command();
    } else {
        QMetaObject::invokeMethod(qApp, command, Qt::QueuedConnection);
    }
}
