#pragma once

#include <functional>
#include <optional>
#include <string>

class QPrinter;

/// A question has the buttons Yes and No, a notice has one.
struct MessageBoxRequest {
    std::string text;
    std::string title;
    bool question;
};

struct FileDialogRequest {
    bool saving; ///< else the dialog chooses a file to open
    std::string title;
    std::string prompt;
    std::string folder; ///< where it starts
    std::string suggestedName;
};

/// Every call that blocks on the user or leaves the process goes through one of these. RuntimePerformInitializers
/// connects them to the desktop; a test replaces them with its own answers.
struct Doors {
    /// Returns kYes or kNo; for a notice the result means nothing.
    std::function<int(MessageBoxRequest const&)> messageBox;
    std::function<void(std::string const& address)> browser;
    /// Returns the path of the chosen file, or nothing if the user cancels.
    std::function<std::optional<std::string>(FileDialogRequest const&)> fileDialog;
    /// Returns false if the user cancels, and with the reason if no dialog can be shown.
    std::function<bool(QPrinter&, int pages, std::string& fault)> printDialog;
};

Doors& PlatformDoors();

// The desktop behind the doors. Once the program is ending no box and no dialog opens: it counts as cancelled, and
// a question as answered with No.

int ShowMessageBox(MessageBoxRequest const& request);
void OpenInBrowser(std::string const& address);
std::optional<std::string> ShowFileDialog(FileDialogRequest const& request);
bool ShowPrintDialog(QPrinter& printer, int pages, std::string& fault);
