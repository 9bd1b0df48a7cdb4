#pragma once

#include <QMessageBox>
#include <QTimer>

/// A message box that only a deliberate key answers. It drops every key until the keyboard has been quiet for half a
/// second, since those keys were meant for a field. After that Tab, arrows, Space, Return, Escape and Alt letters work;
/// plain letters never do. The mouse works at once.
class QuietBox final : public QMessageBox {
public:
    explicit QuietBox(QWidget* parent);
    ~QuietBox() override;
    QuietBox(QuietBox const&) = delete;
    QuietBox& operator=(QuietBox const&) = delete;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    [[nodiscard]] bool takesKeys(QKeyEvent const& event);

    QTimer quiet_; ///< runs until the keyboard has been quiet
    bool isOpen_ = false;
};
