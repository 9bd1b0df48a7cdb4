#include "platform/qt/widgets/tracked_line_edit.h"

#include "platform/qt/widgets/program.h"

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
    isTypingOver_ = false; // the history is empty now
    isWriting_ = wasWriting;
}

/// What the user may not change is restored for good; elsewhere the edit is repeated a moment later as the user's
/// own, once the other program has its answer.
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
        Program::instance().front.heedShortcuts();
        if (userChange) {
            userChange();
        }
    }
}

qsizetype TrackedLineEdit::room() const
{
    return limit_ - (text().size() - selectedText().size());
}

/// Line breaks at the text's ends are dropped, those inside become blanks.
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
    beginTyping();
    runUserAct([&] { insert(fitted(text)); });
}

void TrackedLineEdit::removeSelection()
{
    if (!isReadOnly() && hasSelectedText()) {
        beginTyping();
        runUserAct([this] { del(); });
    }
}

void TrackedLineEdit::endTyping()
{
    isTypingOver_ = isUndoAvailable() || isRedoAvailable();
}

/// Empties a history from before a command. Only now, since writing the text again is the toolkit's one way to do it,
/// and a screen reader would read the text aloud.
void TrackedLineEdit::beginTyping()
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

void TrackedLineEdit::undoTyping()
{
    if (canUndoTyping()) {
        runUserAct([this] { undo(); });
    }
}

void TrackedLineEdit::redoTyping()
{
    if (!isTypingOver_) {
        runUserAct([this] { redo(); });
    }
}
