#pragma once

#include "platform/control.h"

#include <functional>

/// One line of text, of which there is no other copy.
class TextField final : public Control {
public:
    TextField(QWidget* parent, std::string const& name);

    /// Before a key reaches the field: its text, or its name if it types none. Returns true to consume the key. Not
    /// called for Tab, Return, menu shortcuts and modifier keys alone.
    std::function<bool(TextField&, std::string const& key)> KeyDown;
    /// The focus moved here from another control of the window.
    std::function<void(TextField&)> GotFocus;
    /// The user changed the text; writes by the program don't count.
    std::function<void(TextField&)> TextChange;

    [[nodiscard]] std::string Text() const;
    /// Replaces the whole text; the cursor is then at its end (in a read-only field at its start).
    void Text(std::string_view text);

    /// Limits what the user can enter, in any way; writes by the program are not cut.
    void MaximumCharactersAllowed(int count);

    void Apply(ControlProperties const& properties) override;
};
