#include "platform/qt/widgets/tracked_line_edit.h"

#include "platform/qt/widgets/menu_action.h"

#include <QRegularExpression>

#include <limits>

namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();

} // namespace

TrackedLineEdit::TrackedLineEdit(QWidget* parent) : QLineEdit(parent), limit_(kNoLimit)
{
    setMaxLength(kNoLimit);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!isWriting_ && userActs_ == 0) {
            redirectEdit();
        }
    });
}

void TrackedLineEdit::limitUserTo(int characters)
{
    limit_ = characters;
}

void TrackedLineEdit::setTextQuietly(QString const& text)
{
    bool const wasWriting = std::exchange(isWriting_, true);
    lastText_ = text;
    setText(text);
    isHistorySealed_ = false; // the history is empty now
    isWriting_ = wasWriting;
}

/// Where the user can't type, the edit is just taken back. Elsewhere it is repeated as typing, from the event loop, so
/// that the assistive program has its answer first.
void TrackedLineEdit::redirectEdit()
{
    QString const wanted = text();
    setTextQuietly(QString(lastText_));
    if (!isReadOnly() && isEnabled() && isVisible()) {
        QMetaObject::invokeMethod(this, [this, wanted] { takeEdit(wanted); }, Qt::QueuedConnection);
    }
}

void TrackedLineEdit::reportChange()
{
    if (text() != lastText_) {
        lastText_ = text();
        MenuAction::endIgnoring();
        QPointer<TrackedLineEdit> const field(this);
        isReporting_ = true;
        if (userChange) {
            userChange();
        }
        if (field != nullptr) {
            isReporting_ = false;
        }
    }
}

qsizetype TrackedLineEdit::room() const
{
    return limit_ - (text().size() - selectedText().size());
}

/// Drops line breaks at the ends; those inside become blanks.
QString TrackedLineEdit::fitted(QString text, qsizetype replaced) const
{
    static QRegularExpression const atEnds(
        QStringLiteral("^[\\r\\n\\x{2028}\\x{2029}]+|[\\r\\n\\x{2028}\\x{2029}]+$"));
    static QRegularExpression const inside(QStringLiteral("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]"));
    text.remove(atEnds);
    text.replace(inside, QStringLiteral(" "));
    text.truncate(qMax(qsizetype(0), room() + replaced));
    if (!text.isEmpty() && text.back().isHighSurrogate()) {
        text.chop(1);
    }
    return text;
}

void TrackedLineEdit::insertByUser(QString const& text)
{
    clearSealedHistory();
    runUserAct([&] { insert(fitted(text)); });
}

void TrackedLineEdit::removeSelection()
{
    if (!isReadOnly() && hasSelectedText()) {
        clearSealedHistory();
        runUserAct([this] { del(); });
    }
}

void TrackedLineEdit::sealUndoHistory()
{
    isHistorySealed_ = isUndoAvailable() || isRedoAvailable();
}

/// The toolkit can empty the history only by writing the text again, which a screen reader reads aloud. So this is done
/// when the user changes the text anyway, not when the history is sealed.
void TrackedLineEdit::clearSealedHistory()
{
    if (!isHistorySealed_) {
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

void TrackedLineEdit::undoTyping()
{
    if (canUndoTyping()) {
        runUserAct([this] { undo(); });
    }
}

void TrackedLineEdit::redoTyping()
{
    if (!isHistorySealed_) {
        runUserAct([this] { redo(); });
    }
}
