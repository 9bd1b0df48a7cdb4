#include "platform/qt/widgets/line_edit.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/fitted_font.h"
#include "platform/qt/widgets/held_keys.h"
#include "platform/qt/widgets/menu_action.h"

#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

namespace {

constexpr int kFrame = 8; // pixels: the border and the blank inside it, left and right

} // namespace

LineEdit::LineEdit(QWidget* parent) : TrackedLineEdit(parent)
{
    takeEdit = [this](QString const& text) { repeatEdit(text); };
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
        QFont const fitted = CondensedFont(font(), text, width() - kFrame);
        if (fitted != font()) {
            setFont(fitted);
        }
        setCursorPosition(0);
        setToolTip(fontMetrics().horizontalAdvance(text) + kFrame > width() ? text : QString());
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

void LineEdit::leave()
{
    deselect();
    if (isReadOnly()) {
        setCursorPosition(0);
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

void LineEdit::pasteFrom(QClipboard::Mode mode)
{
    QString const text = QGuiApplication::clipboard()->text(mode);
    if (!isReadOnly() && !fitted(text).isEmpty()) {
        insertByUser(text);
    }
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (isReadOnly()) {
        event->ignore();
        return;
    }
    bool const isComposing = !event->preeditString().isEmpty();
    bool const changes = !event->commitString().isEmpty() || event->replacementLength() > 0 ||
                         (isComposing && hasSelectedText()); // which a composition takes the place of
    QPointer<LineEdit> const field(this);
    if ((changes && isConsumed(event->commitString())) || field.isNull()) {
        return;
    }
    if (changes) {
        beginTyping();
    }
    QInputMethodEvent limited(event->preeditString(), event->attributes());
    limited.setCommitString(fitted(event->commitString(), event->replacementLength()),
                            event->replacementStart(), event->replacementLength());
    runUserAct([&] { QLineEdit::inputMethodEvent(&limited); });
    event->setAccepted(limited.isAccepted());
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        deselect();
        pasteFrom(QClipboard::Selection);
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

/// The toolkit's own menu would change the text past the field's limit, and keep line breaks.
void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto const add = [&](QString const& caption, bool isEnabled, auto const& act) {
        QAction* const action = menu->addAction(caption);
        action->setEnabled(isEnabled);
        connect(action, &QAction::triggered, this, act);
    };
    bool const canChange = !isReadOnly();
    add(QStringLiteral("&Undo"), canChange && canUndoTyping(), [this] { undoTyping(); });
    menu->addSeparator();
    add(QStringLiteral("Cu&t"), canChange && hasSelectedText(), [this] {
        copy();
        removeSelection();
    });
    add(QStringLiteral("&Copy"), hasSelectedText(), [this] { copy(); });
    add(QStringLiteral("&Paste"), canChange && !QGuiApplication::clipboard()->text().isEmpty(),
        [this] { pasteFrom(QClipboard::Clipboard); });
    add(QStringLiteral("C&lear"), canChange && hasSelectedText(), [this] { removeSelection(); });
    menu->addSeparator();
    add(QStringLiteral("Select &All"), !text().isEmpty(), [this] { selectAll(); });
    menu->popup(event->globalPos());
}

/// The drop is carried out a moment later: the program may answer it with a message box, for which the other
/// program would have to wait.
void LineEdit::dropEvent(QDropEvent* event)
{
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this,
        [this, text = event->mimeData()->text(), position = cursorPositionAt(event->position().toPoint())] {
            takeDrop(text, position);
        },
        Qt::QueuedConnection);
}

/// A drop moves the focus to its field before it changes the text.
void LineEdit::takeDrop(QString const& text, int position)
{
    QPointer<LineEdit> const field(this);
    takeFocus();
    if (field != nullptr) {
        setCursorPosition(position);
        insertByUser(text);
    }
}

void LineEdit::repeatEdit(QString const& text)
{
    QPointer<LineEdit> const field(this);
    takeFocus();
    if (field.isNull() || isConsumed(text) || field.isNull()) {
        return;
    }
    selectAll();
    insertByUser(text);
}
