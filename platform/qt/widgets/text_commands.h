#pragma once

#include <string_view>

class LineEdit;

/// A menu command that the layer carries out itself, on the focused text field.
struct TextCommand {
    std::string_view item;
    bool needsEditable; ///< off on a read-only field
    void (*run)(LineEdit& field);
};

/// The command of the menu item of this name; null if it is none of them.
TextCommand const* FindTextCommand(std::string_view item);
