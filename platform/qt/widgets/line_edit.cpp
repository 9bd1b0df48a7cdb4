#include "platform/qt/widgets/line_edit.h"

#include "platform/qt/widgets/field_keys.h"
#include "platform/qt/widgets/fitted_font.h"
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
    if (isReadOnly() && !isHidden()) { // nobody sees a hidden one, and fitting takes long
        QFont const fitted = CondensedFont(font(), text, width() - kFrame);
        if (fitted != font()) {
            setFont(fitted);
        }
        setCursorPosition(0);
        setToolTip(fontMetrics().horizontalAdvance(text) + kFrame > width() ? text : QString());
    } else if (window()->focusWidget() == this && !isReportingChange()) {
        selectAll();
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

void LineEdit::enter()
{
    selectsAfterClick_ = !isReadOnly() && QGuiApplication::mouseButtons() == Qt::LeftButton;
}

/// If the user dragged, what the drag selected stays selected.
void LineEdit::endClick()
{
    if (std::exchange(selectsAfterClick_, false) && !hasSelectedText()) {
        selectAll();
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
        QAction const* const action = MenuActionOf(*window(), *key);
        if (action != nullptr && action->isEnabled()) {
            // The only shortcut that the field takes from the menu: undoing what was just typed.
            event->setAccepted(key->matches(QKeySequence::Undo) && canUndoTyping());
            return true;
        }
    }
    if (event->type() == QEvent::WindowActivate) {
        // QLineEdit would deselect its text a moment later if a second message box has the focus by then.
        return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call)
    }
    return QLineEdit::event(event);
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    endClick(); // a message box opens while the button is down
    QLineEdit::focusOutEvent(event);
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    if (IsKeyOfWindow(*event) || IsAltKey(*event)) {
        event->ignore();
        return;
    }
    QPointer<LineEdit> const field(this);
    bool const raisesKeyDown = IsKeyForField(*event) && MenuActionOf(*window(), *event) == nullptr;
    if ((raisesKeyDown && raiseKeyDown(KeyText(*event))) || field.isNull()) {
        return;
    }
    typeKey(event);
    if (field != nullptr && isReadOnly() && !hasSelectedText()) {
        setCursorPosition(0);
    }
}

/// Returns true if the key is consumed. The handler may close the field's window.
bool LineEdit::raiseKeyDown(QString const& key)
{
    return keyDown && keyDown(key);
}

void LineEdit::typeKey(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo)) {
        if (!event->isAutoRepeat()) {
            undoTyping();
        }
    } else if (event->matches(QKeySequence::Redo)) {
        redoTyping();
    } else if (event->matches(QKeySequence::Paste)) {
        bool const fromSelection = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        pasteFrom(fromSelection ? QClipboard::Selection : QClipboard::Clipboard);
    } else if (!TypesText(*event) || room() >= event->text().size()) {
        if (!event->text().isEmpty() || event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
            clearSealedHistory();
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
                         (isComposing && hasSelectedText()); // which the composition replaces
    QPointer<LineEdit> const field(this);
    if ((changes && raiseKeyDown(event->commitString())) || field.isNull()) {
        return;
    }
    if (changes) {
        clearSealedHistory();
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
    QLineEdit::mouseReleaseEvent(event); // copies what a drag has selected to the primary selection
    if (event->button() == Qt::LeftButton) {
        endClick();
    }
}

/// The toolkit's own menu would paste beyond the field's limit, and line breaks too.
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

/// The drop runs from the event loop: it may open a message box, and the other program would have to wait for that.
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
    if (field.isNull() || raiseKeyDown(text) || field.isNull()) {
        return;
    }
    selectAll();
    insertByUser(text);
}
