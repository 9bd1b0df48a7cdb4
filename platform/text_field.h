#pragma once

#include "platform/control.h"

#include <functional>

/// A field of one line of text. Its text is the only copy of what it holds.
class TextField final : public Control {
public:
    TextField(QWidget* parent, std::string const& name);

    /// A key is about to reach the field: the key as text, or its name if it has none. True consumes it.
    /// Tab, Return, modifier keys alone and menu shortcuts don't come here.
    std::function<bool(TextField&, std::string const& key)> KeyDown;
    /// The field became the focused control of its window, by a move of the focus inside the window.
    std::function<void(TextField&)> GotFocus;
    /// The user has changed the text. A write by the program raises nothing.
    std::function<void(TextField&)> TextChange;

    [[nodiscard]] std::string Text() const;
    /// Replaces the whole text; the cursor is then at its end (in a read-only field at its start).
    void Text(std::string_view text);

    /// Limits what a user can put in, by whatever way, to so many characters. Program writes stay whole.
    void MaximumCharactersAllowed(int count);

    void Apply(ControlProperties const& properties) override;
};
