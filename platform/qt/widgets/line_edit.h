#pragma once

#include "platform/qt/widgets/tracked_line_edit.h"

#include <QClipboard>

/// The widget of a text field: it takes keys, pastes, drops, input methods and edits of assistive programs, and leaves
/// the keys of the window and of the menu bar to them.
class LineEdit final : public TrackedLineEdit {
public:
    explicit LineEdit(QWidget* parent);

    /// Before a key, or a text that an input method commits, reaches the field; true consumes it.
    std::function<bool(QString const& key)> keyDown;
    std::function<void()> gotFocus;  ///< called by GotFocusQueue
    std::function<void()> takeFocus; ///< moves the focus here, gotFocus included, for a drop and the like

    void writeByProgram(QString const& text);

    /// Another control of the window gains the focus: nothing stays selected here.
    void leave();

    void pasteFrom(QClipboard::Mode mode);

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
    [[nodiscard]] bool isConsumed(QString const& key);
    void typeKey(QKeyEvent* event);
    void takeDrop(QString const& text, int position);
    void repeatEdit(QString const& text);
    void showStart();
};
