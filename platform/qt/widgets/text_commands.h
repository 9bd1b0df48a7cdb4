#pragma once

#include <string_view>

class LineEdit;

/// A menu command that acts on the focused text field and needs no handler.
struct TextCommand {
    std::string_view item;
    bool needsEditable; ///< disabled for a read-only field
    void (*run)(LineEdit& field);
};

/// The command of this menu item; null if it is not a text command.
TextCommand const* FindTextCommand(std::string_view item);
