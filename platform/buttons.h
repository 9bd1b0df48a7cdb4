#pragma once

#include "platform/control.h"

#include <functional>

/// A click does not move the keyboard focus; Space presses the focused button.
class PushButton final : public Control {
public:
    PushButton(QWidget* parent, std::string const& name);

    /// A click, Space on the focused button, or Return if this is the default button.
    std::function<void()> Action;
    /// The left mouse button went down at this point of the button. Returns true to stop the button from seeing the
    /// press.
    std::function<bool(PushButton&, int x, int y)> MouseDown;

    /// Return and Enter press this button, whichever control has the focus.
    void Default(bool isDefault);

    void Apply(ControlProperties const& properties) override;
};

/// A small button that never takes the keyboard focus.
class BevelButton final : public Control {
public:
    BevelButton(QWidget* parent, std::string const& name);

    std::function<void()> Action;

    void Apply(ControlProperties const& properties) override;
};

class CheckBox final : public Control {
public:
    CheckBox(QWidget* parent, std::string const& name);

    [[nodiscard]] bool Value() const;

    void Apply(ControlProperties const& properties) override;
};
