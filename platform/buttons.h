#pragma once

#include "platform/control.h"

#include <functional>

/// A button with a caption. A click leaves the keyboard focus where it is; Space presses it when focused.
class PushButton final : public Control {
public:
    PushButton(QWidget* parent, std::string const& name);

    /// The button was clicked, by mouse or Space, or is the default button and Return was pressed.
    std::function<void()> Action;
    /// The left mouse button went down at this place inside the button. True keeps the press from it.
    std::function<bool(PushButton&, int x, int y)> MouseDown;

    /// Makes this the button that Return and Enter press, whichever control of the window has the focus.
    void Default(bool isDefault);

    void Apply(ControlProperties const& properties) override;
};

/// A small button that takes no keyboard focus at all.
class BevelButton final : public Control {
public:
    BevelButton(QWidget* parent, std::string const& name);

    std::function<void()> Action;

    void Apply(ControlProperties const& properties) override;
};

/// A box that is checked or not.
class CheckBox final : public Control {
public:
    CheckBox(QWidget* parent, std::string const& name);

    [[nodiscard]] bool Value() const;

    void Apply(ControlProperties const& properties) override;
};
