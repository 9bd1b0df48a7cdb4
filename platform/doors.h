#pragma once

#include <functional>
#include <optional>
#include <string>

class QPrinter;

/// A message box that the program asks for. A question has the buttons Yes and No, a notice has one.
struct MessageBoxRequest {
    std::string text;
    std::string title;
    bool question;
};

/// A file dialog that the program asks for, to choose a file to save or one to open.
struct FileDialogRequest {
    bool saving;
    std::string title;
    std::string prompt;
    std::string folder; ///< where it starts
    std::string suggestedName;
};

/// Every call that blocks on the user or leaves the process goes through one of these. The start of the run-time
/// connects them to the desktop; a test replaces them by its own answers.
struct Doors {
    /// Returns kYes or kNo; for a notice the result means nothing.
    std::function<int(MessageBoxRequest const&)> messageBox;
    std::function<void(std::string const& address)> browser;
    /// Returns the path of the chosen file, or nothing.
    std::function<std::optional<std::string>(FileDialogRequest const&)> fileDialog;
    /// Lets the user set the printer up; false if the user cancels, and with the fault if there is no dialog.
    std::function<bool(QPrinter&, std::string& fault)> printDialog;
};

Doors& PlatformDoors();
