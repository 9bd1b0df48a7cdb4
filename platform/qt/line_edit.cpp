#include "platform/qt/line_edit.h"

#include "platform/qt/field_keys.h"
#include "platform/qt/guard.h"
#include "platform/qt/menu_actions.h"

#include <QAction>
#include <QKeyEvent>

#include <limits>

namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();

} // namespace

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent), limit_(kNoLimit)
{
    setMaxLength(kNoLimit);
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (actsUnderWay_ == 0) {
            tellChange();
        }
    });
    connect(this, &QLineEdit::selectionChanged, this, [this] {
        if (isReadOnly() && hasSelectedText() && selectedText().size() == text().size()) {
            showStart();
        }
    });
}

void LineEdit::writeByProgram(QString const& text)
{
    lastText_ = text;
    setText(text);
    if (isReadOnly()) {
        setCursorPosition(0);
        int const frame = 8; // the border and the blank inside it, left and right
        setToolTip(fontMetrics().horizontalAdvance(text) + frame > width() ? text : QString());
    }
}

void LineEdit::limitUserTo(int characters)
{
    limit_ = characters;
}

void LineEdit::forgetTyping()
{
    if (!isUndoAvailable()) {
        return;
    }
    int const cursor = cursorPosition();
    int const start = selectionStart();
    auto const length = static_cast<int>(selectedText().size());
    setText(text()); // the toolkit's only way to empty the history
    if (length == 0) {
        setCursorPosition(cursor);
    } else if (cursor == start) {
        setSelection(start + length, -length);
    } else {
        setSelection(start, length);
    }
}

void LineEdit::leave()
{
    deselect();
    if (isReadOnly()) {
        setCursorPosition(0);
    }
}

void LineEdit::clearSelection()
{
    if (!isReadOnly() && hasSelectedText()) {
        actOfUser([this] { del(); });
    }
}

bool LineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const key = static_cast<QKeyEvent*>(event);
        QAction const* const action = MenuActionOf(*window(), *key);
        if (action != nullptr && action->isEnabled()) {
            // The one key that the field keeps from the menu: taking back what was just typed.
            event->setAccepted(key->matches(QKeySequence::Undo) && isUndoAvailable());
            return true;
        }
    }
    return QLineEdit::event(event);
}

/// A walk through the menu bar by key leaves the selection as it is, as one by mouse does.
void LineEdit::focusInEvent(QFocusEvent* event)
{
    bool const fromMenu = event->reason() == Qt::MenuBarFocusReason;
    QFocusEvent entered(event->type(), fromMenu ? Qt::PopupFocusReason : event->reason());
    QLineEdit::focusInEvent(&entered);
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    bool const toMenu = event->reason() == Qt::MenuBarFocusReason;
    QFocusEvent left(event->type(), toMenu ? Qt::PopupFocusReason : event->reason());
    QLineEdit::focusOutEvent(&left);
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    if (IsKeyOfWindow(*event)) {
        event->ignore();
        return;
    }
    bool const told = !IsModifierAlone(*event) && MenuActionOf(*window(), *event) == nullptr;
    if (told && keyDown) {
        QPointer<LineEdit> const field(this);
        bool const consumed = Guarded(keyDown, KeyText(*event));
        if (consumed || field.isNull()) {
            return;
        }
    }
    actOfUser([&] { typeKey(event); });
    if (isReadOnly() && !hasSelectedText()) {
        setCursorPosition(0);
    }
}

void LineEdit::typeKey(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        bool const fromSelection = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        pasteFrom(fromSelection ? QClipboard::Selection : QClipboard::Clipboard);
    } else if (!TypesText(*event) || room() >= event->text().size()) {
        QLineEdit::keyPressEvent(event);
    }
}

/// Keeps the whole text selected, but with its start in sight.
void LineEdit::showStart()
{
    if (cursorPosition() != 0) {
        auto const length = static_cast<int>(text().size());
        setSelection(length, -length);
    }
}

void LineEdit::tellChange()
{
    if (text() != lastText_) {
        lastText_ = text();
        if (userChange) {
            Guarded(userChange);
        }
    }
}
