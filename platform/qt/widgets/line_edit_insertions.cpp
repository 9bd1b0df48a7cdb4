#include "platform/qt/widgets/line_edit.h"

#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>

// The ways in which a user puts more than one typed character into a field: paste, drop, input method, context
// menu and assistive programs.

/// How many characters the user may add; what is selected makes room.
qsizetype LineEdit::room() const
{
    return limit_ - (text().size() - selectedText().size());
}

/// The text as one line, cut to the room left: line breaks at its ends are dropped, those inside become blanks.
QString LineEdit::fitted(QString text, qsizetype room)
{
    static QRegularExpression const atEnds(
        QStringLiteral("^[\\r\\n\\x{2028}\\x{2029}]+|[\\r\\n\\x{2028}\\x{2029}]+$"));
    static QRegularExpression const inside(QStringLiteral("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]"));
    text.remove(atEnds);
    text.replace(inside, QStringLiteral(" "));
    text.truncate(qMax(qsizetype(0), room));
    if (!text.isEmpty() && text.back().isHighSurrogate()) {
        text.chop(1);
    }
    return text;
}

void LineEdit::insertByUser(QString const& text)
{
    beginTyping();
    runUserAct([&] { insert(fitted(text, room())); });
}

void LineEdit::pasteFrom(QClipboard::Mode mode)
{
    QString const text = QGuiApplication::clipboard()->text(mode);
    if (!isReadOnly() && !fitted(text, room()).isEmpty()) {
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
    limited.setCommitString(fitted(event->commitString(), room() + event->replacementLength()),
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
    if (isReadOnly() || !event->mimeData()->hasText()) {
        event->ignore();
        return;
    }
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

/// An assistive program has set the text. What the user may not change is restored for good; elsewhere the edit
/// is repeated a moment later as the user's own, once the other program has its answer.
void LineEdit::redirectEdit()
{
    QString const wanted = text();
    setTextQuietly(QString(lastText_));
    if (isEditable()) {
        QMetaObject::invokeMethod(this, [this, wanted] { takeEdit(wanted); }, Qt::QueuedConnection);
    }
}

void LineEdit::takeEdit(QString const& text)
{
    QPointer<LineEdit> const field(this);
    takeFocus();
    if (field.isNull() || isConsumed(text) || field.isNull()) {
        return;
    }
    selectAll();
    insertByUser(text);
}
