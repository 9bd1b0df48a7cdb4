#pragma once

#include "platform/control.h"

#include <functional>

/// A field of one line of text. Its text is the only copy of what it holds.
class TextField final : public Control {
public:
    TextField(QWidget* parent, std::string const& name);

    /// Raised before a key reaches the field, with the text that it types, or its name if it types none. Returns true
    /// to consume it. Not raised for Tab, Return, menu shortcuts and modifier keys alone.
    std::function<bool(TextField&, std::string const& key)> KeyDown;
    /// Raised when the window's focus moves here from another control, not when the window itself gets it back.
    std::function<void(TextField&)> GotFocus;
    /// Raised after the user has changed the text, not after a write by the program.
    std::function<void(TextField&)> TextChange;

    [[nodiscard]] std::string Text() const;
    /// Replaces the whole text. In the editable field that has the focus it is then selected, so that typing replaces
    /// it; when TextChange of the same field writes it, and in other fields, the cursor is at its end instead, in a
    /// read-only field at its start.
    void Text(std::string_view text);

    /// Limits what a user can enter, in any way, to this many characters. Writes by the program are not cut.
    void MaximumCharactersAllowed(int count);

    void Apply(ControlProperties const& properties) override;
};
