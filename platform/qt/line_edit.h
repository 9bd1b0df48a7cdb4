#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <QPointer>

#include <functional>

/// The widget of a text field: a line edit that tells what the user did, once for each act and after it is
/// complete, and keeps the keys of the window and of the menu bar out of the field.
class LineEdit final : public QLineEdit {
public:
    explicit LineEdit(QWidget* parent);

    std::function<bool(QString const& key)> keyDown; ///< before a key; true consumes it
    std::function<void()> gotFocus;                  ///< told by TopLevel
    std::function<void()> userChange;                ///< after an act of the user that changed the text

    void writeByProgram(QString const& text);
    void limitUserTo(int characters);
    /// What is typed from here on can be taken back, what was typed before no longer.
    void forgetTyping();

    /// Another control of the window gains the focus: nothing stays selected here.
    void leave();

    void pasteFrom(QClipboard::Mode mode);
    void clearSelection();

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
    [[nodiscard]] qsizetype room() const;
    [[nodiscard]] QString admitted(QString text, qsizetype room) const;
    void typeKey(QKeyEvent* event);
    void takeDrop(QString const& text, int position);
    void showStart();
    void tellChange();

    /// Runs one act of the user; its change of the text is told once, when the act is complete.
    template <class Act>
    void actOfUser(Act const& act)
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

    QString lastText_; ///< what the program or the last told change left, to see whether an act changed it
    int limit_;
    int actsUnderWay_ = 0;
};
