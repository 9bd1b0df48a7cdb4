#include "platform/qt/widgets/line_edit.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/fitted_font.h"
#include "platform/qt/widgets/held_keys.h"
#include "platform/qt/widgets/menu_action.h"

#include <QKeyEvent>

#include <limits>

namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();
constexpr int kFrame = 8; // pixels: the border and the blank inside it, left and right

} // namespace

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent), limit_(kNoLimit)
{
    setMaxLength(kNoLimit);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!isWriting_ && userActs_ == 0) {
            redirectEdit();
        }
    });
    connect(this, &QLineEdit::selectionChanged, this, [this] {
        if (isReadOnly() && hasSelectedText() && selectedText().size() == text().size()) {
            showStart();
        }
    });
}

/// A result too wide for its field is condensed; one that is still too wide shows its start and has a tooltip.
void LineEdit::writeByProgram(QString const& text)
{
    setTextQuietly(text);
    if (isReadOnly()) {
        QFont const fitted = FittedFont(font(), text, width() - kFrame);
        if (fitted != font()) {
            setFont(fitted);
        }
        setCursorPosition(0);
        setToolTip(fontMetrics().horizontalAdvance(text) + kFrame > width() ? text : QString());
    }
}

void LineEdit::setTextQuietly(QString const& text)
{
    bool const wasWriting = std::exchange(isWriting_, true);
    lastText_ = text;
    setText(text);
    isTypingOver_ = false; // the history is empty now
    isWriting_ = wasWriting;
}

void LineEdit::limitUserTo(int characters)
{
    limit_ = characters;
}

void LineEdit::endTyping()
{
    isTypingOver_ = isUndoAvailable() || isRedoAvailable();
}

/// Empties a history from before a command, now that new typing begins. Only here, since writing the text again is
/// the toolkit's one way to do it, and a screen reader would read the text aloud.
void LineEdit::beginTyping()
{
    if (!isTypingOver_) {
        return;
    }
    int const cursor = cursorPosition();
    int const start = selectionStart();
    auto const length = static_cast<int>(selectedText().size());
    setTextQuietly(text());
    if (length == 0) {
        setCursorPosition(cursor);
    } else if (cursor == start) {
        setSelection(start + length, -length);
    } else {
        setSelection(start, length);
    }
}

void LineEdit::undoTyping()
{
    if (canUndoTyping()) {
        runUserAct([this] { undo(); });
    }
}

void LineEdit::redoTyping()
{
    if (!isTypingOver_) {
        runUserAct([this] { redo(); });
    }
}

void LineEdit::leave()
{
    deselect();
    if (isReadOnly()) {
        setCursorPosition(0);
    }
}

void LineEdit::removeSelection()
{
    if (!isReadOnly() && hasSelectedText()) {
        beginTyping();
        runUserAct([this] { del(); });
    }
}

bool LineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const key = static_cast<QKeyEvent*>(event);
        QAction const* const action = MenuAction::of(*window(), *key);
        if (action != nullptr && action->isEnabled()) {
            // The one key that the field keeps from the menu: undoing what was just typed.
            event->setAccepted(key->matches(QKeySequence::Undo) && canUndoTyping());
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
    if (IsKeyOfWindow(*event) || IsAltKey(*event)) {
        event->ignore();
        return;
    }
    QPointer<LineEdit> const field(this);
    bool const raisesKeyDown = IsKeyOfItsOwn(*event) && MenuAction::of(*window(), *event) == nullptr;
    if ((raisesKeyDown && isConsumed(KeyText(*event))) || field.isNull()) {
        return;
    }
    typeKey(event);
    if (field != nullptr && isReadOnly() && !hasSelectedText()) {
        setCursorPosition(0);
    }
}

/// The handler may close the window of the field.
bool LineEdit::isConsumed(QString const& key)
{
    return keyDown && keyDown(key);
}

void LineEdit::typeKey(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo)) {
        if (!IsRepeat(*event)) {
            undoTyping();
        }
    } else if (event->matches(QKeySequence::Redo)) {
        redoTyping();
    } else if (event->matches(QKeySequence::Paste)) {
        bool const fromSelection = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        pasteFrom(fromSelection ? QClipboard::Selection : QClipboard::Clipboard);
    } else if (!TypesText(*event) || room() >= event->text().size()) {
        if (!event->text().isEmpty() || event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
            beginTyping();
        }
        runUserAct([&] { QLineEdit::keyPressEvent(event); });
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

void LineEdit::reportChange()
{
    if (text() != lastText_) {
        lastText_ = text();
        MenuAction::endIgnoring();
        if (userChange) {
            userChange();
        }
    }
}
