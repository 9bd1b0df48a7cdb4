#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <QPointer>

#include <functional>

/// The widget of a text field: a line edit that reports what the user did, once for each act and after it is
/// complete, and that leaves the keys of the window and of the menu bar to them. Whatever the user puts in comes
/// through insertByUser or typeKey, so it stays one line and within the field's limit.
class LineEdit final : public QLineEdit {
public:
    explicit LineEdit(QWidget* parent);

    /// Before a key, or a text that an input method commits, reaches the field; true consumes it.
    std::function<bool(QString const& key)> keyDown;
    std::function<void()> gotFocus;   ///< called by FocusOrder
    std::function<void()> userChange; ///< after an act of the user that changed the text
    std::function<void()> takeFocus;  ///< moves the focus here, gotFocus included, for a drop and the like

    void writeByProgram(QString const& text);
    void limitUserTo(int characters);

    /// A command begins: what the user has typed so far can no longer be undone.
    void endTyping();
    [[nodiscard]] bool canUndoTyping() const { return isUndoAvailable() && !isTypingOver_; }

    /// Another control of the window gains the focus: nothing stays selected here.
    void leave();

    void pasteFrom(QClipboard::Mode mode);
    void removeSelection();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    [[nodiscard]] bool isEditable() const { return !isReadOnly() && isEnabled() && isVisible(); }
    [[nodiscard]] qsizetype room() const;
    [[nodiscard]] static QString fitted(QString text, qsizetype room);
    [[nodiscard]] bool isConsumed(QString const& key);
    void typeKey(QKeyEvent* event);
    void beginTyping();
    void undoTyping();
    void redoTyping();
    void insertByUser(QString const& text);
    void takeDrop(QString const& text, int position);
    void redirectEdit();
    void takeEdit(QString const& text);
    void setTextQuietly(QString const& text);
    void showStart();
    void reportChange();

    /// Runs one act of the user; a change of the text is reported once, when the act is complete.
    template <class Act>
    void runUserAct(Act const& act)
    {
        QPointer<LineEdit> const field(this);
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

    QString
        lastText_; ///< what the program or the last reported change left, to see whether an act changed it
    int limit_;
    int userActs_ = 0;          ///< acts of the user under way, one inside the other
    bool isWriting_ = false;    ///< the text changes by no act of the user
    bool isTypingOver_ = false; ///< the undo history is from before a command
};
