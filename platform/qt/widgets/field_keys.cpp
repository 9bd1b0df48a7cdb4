#include "platform/qt/widgets/field_keys.h"

#include <QKeyEvent>
#include <QKeySequence>

bool IsReturn(QKeyEvent const& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsKeyOfWindow(QKeyEvent const& event)
{
    bool const isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return IsReturn(event) || (isTab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)));
}

bool IsAltKey(QKeyEvent const& event)
{
#ifdef Q_OS_MACOS
    Q_UNUSED(event)
    return false;
#else
    Qt::KeyboardModifiers const modifiers = event.modifiers();
    return modifiers.testAnyFlags(Qt::AltModifier | Qt::MetaModifier) &&
           !modifiers.testFlag(Qt::ControlModifier);
#endif
}

/// In Qt's numbering the special keys start at Escape: first the usual ones, including modifiers, then, from
/// Key_Direction_L on, layout switches, dead keys and media keys.
bool IsKeyForField(QKeyEvent const& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
        return false;
    default:
        return !event.text().isEmpty() || (event.key() != 0 && event.key() < Qt::Key_Direction_L);
    }
}

bool TypesText(QKeyEvent const& event)
{
    // Ctrl and Alt together are AltGr, which types.
    bool const isCommand = event.modifiers() == Qt::ControlModifier ||
                           event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).category() != QChar::Other_Control;
}

QString KeyText(QKeyEvent const& event)
{
    return TypesText(event) ? event.text() : QKeySequence(event.keyCombination()).toString();
}
