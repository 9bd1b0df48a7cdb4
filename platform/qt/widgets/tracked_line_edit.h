#pragma once

#include <QLineEdit>
#include <QPointer>

#include <functional>

/// A line edit that knows who changed its text: the program, the user or an assistive program. It reports what the
/// user did once for each act, after the act is complete, and undoes only what was typed since the last command.
/// What the user inserts is made one line within the field's limit.
class TrackedLineEdit : public QLineEdit {
public:
    std::function<void()> userChange; ///< after an act of the user that changed the text
    /// An assistive program has set this text where the user may type; the old one is there again.
    std::function<void(QString const& text)> takeEdit;

    void limitUserTo(int characters);

    /// A command begins: what the user has typed so far can no longer be undone.
    void endTyping();
    [[nodiscard]] bool canUndoTyping() const { return isUndoAvailable() && !isTypingOver_; }

    void removeSelection();

protected:
    explicit TrackedLineEdit(QWidget* parent);

    /// Writes a text as the program does, which leaves nothing to undo.
    void setTextQuietly(QString const& text);

    /// How many characters the user may add; what is selected makes room.
    [[nodiscard]] qsizetype room() const;
    /// The text as one line, cut to the room and to so many characters that it replaces.
    [[nodiscard]] QString fitted(QString text, qsizetype replaced = 0) const;
    void insertByUser(QString const& text);

    /// To be called before typing changes the text.
    void beginTyping();
    void undoTyping();
    void redoTyping();

    /// Runs one act of the user; a change of the text is reported once, when the act is complete.
    template <class Act>
    void runUserAct(Act const& act)
    {
        QPointer<TrackedLineEdit> const field(this);
        ++userActs_;
        act();
        if (field.isNull()) {
            return;
        }
        --userActs_;
        if (userActs_ == 0) {
            reportChange();
        }
    }

private:
    void redirectEdit();
    void reportChange();

    /// The text after the last write by the program or the last reported change.
    QString lastText_;
    int limit_;
    int userActs_ = 0;          ///< acts of the user under way, one inside the other
    bool isWriting_ = false;    ///< the text changes by no act of the user
    bool isTypingOver_ = false; ///< the undo history is from before a command
};
