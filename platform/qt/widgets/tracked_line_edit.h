#pragma once

#include <QLineEdit>
#include <QPointer>

#include <functional>

/// A line edit that knows who changed its text: the program, the user or an assistive program. It reports each act
/// of the user once, when the act is complete, and undoes only what was typed since the last command. What the user
/// inserts is made one line within the field's limit.
class TrackedLineEdit : public QLineEdit {
public:
    std::function<void()> userChange; ///< after an act of the user that changed the text
    /// An assistive program wants this text where the user may type; the field already shows its old text again.
    std::function<void(QString const& text)> takeEdit;

    void limitUserTo(int characters);

    /// Typing so far can no longer be undone or redone.
    void sealUndoHistory();
    [[nodiscard]] bool canUndoTyping() const { return isUndoAvailable() && !isHistorySealed_; }

    void removeSelection();

protected:
    explicit TrackedLineEdit(QWidget* parent);

    /// Writes a text without reporting it and empties the undo history.
    void setTextQuietly(QString const& text);

    /// userChange is running.
    [[nodiscard]] bool isReportingChange() const { return isReporting_; }

    /// How many characters the user may add; those that are selected would be replaced.
    [[nodiscard]] qsizetype room() const;
    /// The text as one line, cut to the room plus this many characters that it replaces.
    [[nodiscard]] QString fitted(QString text, qsizetype replaced = 0) const;
    void insertByUser(QString const& text);

    /// Empties the undo history if it is sealed. Called before each change that the user makes.
    void clearSealedHistory();
    void undoTyping();
    void redoTyping();

    /// Runs one act of the user, then reports a change of the text once. Acts may be nested.
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
    int userActs_ = 0;             ///< nesting depth of acts of the user
    bool isWriting_ = false;       ///< setTextQuietly is running
    bool isReporting_ = false;     ///< userChange is running
    bool isHistorySealed_ = false; ///< nothing in the undo history may be undone
};
