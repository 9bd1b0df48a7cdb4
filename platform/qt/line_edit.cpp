#include "platform/qt/line_edit.h"

#include "platform/qt/guard.h"
#include "platform/qt/menu_actions.h"
#include "platform/qt/top_level.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QRegularExpression>

#include <limits>

namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();

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
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier));
}

QString KeyText(QKeyEvent const& event)
{
    return TypesText(event) ? event.text() : QKeySequence(event.keyCombination()).toString();
}

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

void LineEdit::pasteFrom(QClipboard::Mode mode)
{
    QString const text = admitted(QGuiApplication::clipboard()->text(mode), room());
    if (!isReadOnly() && !text.isEmpty()) {
        actOfUser([&] { insert(text); });
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

/// Runs one act of the user; its change of the text is told once, when the act is complete.
template <class Act>
void LineEdit::actOfUser(Act const& act)
{
    QPointer<LineEdit> const field(this);
    ++actsUnderWay_;
    act();
    if (field.isNull()) {
        return;
    }
    --actsUnderWay_;
    if (actsUnderWay_ == 0) {
        tellChange();
    }
}
