#pragma once

#include <functional>
#include <optional>
#include <string>

class QPrinter;

/// A message box as the program asks for it. A question has the buttons Yes and No, a notice has one.
struct MessageBoxRequest {
    std::string text;
    std::string title;
    bool question = false;
};

/// A file dialog as the program asks for it, for a file to save or one to open.
struct FileDialogRequest {
    bool saving = false;
    std::string title;
    std::string prompt;
    std::string folder; ///< where it starts
    std::string suggestedName;
};

/// The one way out for everything that waits for the user or leaves the process. They lead to the desktop
/// from the start; a test puts its own answers in their place.
struct Doors {
    std::function<int(MessageBoxRequest const&)> messageBox;
    std::function<void(std::string const& address)> browser;
    /// The path of the chosen file, or nothing.
    std::function<std::optional<std::string>(FileDialogRequest const&)> fileDialog;
    /// Lets the user set the printer up; false if the user cancels, and with the fault if there is no dialog.
    std::function<bool(QPrinter&, std::string& fault)> printDialog;
};

Doors& PlatformDoors();
