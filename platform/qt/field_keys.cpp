#include "platform/qt/field_keys.h"

#include <QKeyEvent>
#include <QKeySequence>

bool IsKeyOfWindow(QKeyEvent const& event)
{
    bool const isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
           (isTab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)));
}

bool IsModifierAlone(QKeyEvent const& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Mode_switch:
    case Qt::Key_Multi_key:
        return true;
    default:
        return false;
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
