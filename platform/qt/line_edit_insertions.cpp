#include "platform/qt/line_edit.h"

#include "platform/qt/top_level.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>

// The ways in which a user puts more than one typed character into a field: paste, drop, input method. All of
// them make one line of the text and keep the field's limit.

/// How many characters the user may add; what is selected makes room.
qsizetype LineEdit::room() const
{
    return limit_ - (text().size() - selectedText().size());
}

/// What of an inserted text fits into one line and into the room.
QString LineEdit::admitted(QString text, qsizetype room) const
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

void LineEdit::pasteFrom(QClipboard::Mode mode)
{
    QString const text = admitted(QGuiApplication::clipboard()->text(mode), room());
    if (!isReadOnly() && !text.isEmpty()) {
        actOfUser([&] { insert(text); });
    }
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    QInputMethodEvent limited(event->preeditString(), event->attributes());
    limited.setCommitString(admitted(event->commitString(), room() + event->replacementLength()),
                            event->replacementStart(), event->replacementLength());
    actOfUser([&] { QLineEdit::inputMethodEvent(&limited); });
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

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* const paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
        disconnect(paste, &QAction::triggered, this, nullptr);
        connect(paste, &QAction::triggered, this, [this] { pasteFrom(QClipboard::Clipboard); });
    }
    menu->popup(event->globalPos());
}

/// The drop is taken a moment later: the program's answer to it may be a message box, for which the other
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
    setFocus(Qt::OtherFocusReason);
    if (auto* const top = dynamic_cast<TopLevel*>(window())) {
        top->noteFocus(this);
        TopLevel::tellFocus();
    }
    if (field.isNull()) {
        return;
    }
    actOfUser([&] {
        setCursorPosition(position);
        insert(admitted(text, room()));
    });
}
