#pragma once

#include "platform/control.h"

#include <functional>

/// What all buttons share: a caption, and its font. A click does not move the keyboard focus.
class Button : public Control {
public:
    void Apply(ControlProperties const& properties) override;

protected:
    /// The margins are the pixels to the left and right of the caption, together.
    Button(QWidget* widget, std::string const& name, int margins);

private:
    int margins_;
};

/// A button with a caption. Space presses it when it has the focus.
class PushButton final : public Button {
public:
    PushButton(QWidget* parent, std::string const& name);

    /// Raised by a click, by Space, and by Return if this is the default button.
    std::function<void()> Action;
    /// Raised when the left mouse button goes down on the button, at this position inside it in pixels. Returns true to
    /// stop the button from seeing the press.
    std::function<bool(PushButton&, int x, int y)> MouseDown;

    /// Makes this the button that Return and Enter press, whichever control of the window has the focus.
    void Default(bool isDefault);
};

/// A small button that never has the keyboard focus.
class BevelButton final : public Button {
public:
    BevelButton(QWidget* parent, std::string const& name);

    std::function<void()> Action; ///< raised by a click
};

class CheckBox final : public Button {
public:
    CheckBox(QWidget* parent, std::string const& name);

    /// Whether the box is checked.
    [[nodiscard]] bool Value() const;
};
