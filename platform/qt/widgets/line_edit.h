#pragma once

#include "platform/qt/widgets/tracked_line_edit.h"

#include <QClipboard>

/// The widget of a text field. It handles keys, paste, drops, input methods and edits by assistive programs, and
/// leaves the keys of the window and the menu bar alone.
class LineEdit final : public TrackedLineEdit {
public:
    explicit LineEdit(QWidget* parent);

    /// Called before a key, or a text that an input method commits, reaches the field; true consumes it.
    std::function<bool(QString const& key)> keyDown;
    std::function<void()> gotFocus;  ///< called by GotFocusQueue
    std::function<void()> takeFocus; ///< moves the focus here and calls gotFocus at once

    /// Replaces the text. In the field that has the focus it is selected, so that typing replaces it.
    void writeByProgram(QString const& text);

    /// The window's focus moves here from another control. If a click moves it, the text is selected after the click.
    void enter();
    /// The window's focus moves to another control. Nothing stays selected here.
    void leave();

    void pasteFrom(QClipboard::Mode mode);

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    [[nodiscard]] bool raiseKeyDown(QString const& key);
    void typeKey(QKeyEvent* event);
    void takeDrop(QString const& text, int position);
    void repeatEdit(QString const& text);
    void showStart();
    void endClick();

    bool selectsAfterClick_ = false; ///< the click that moved the focus here is not over
};
