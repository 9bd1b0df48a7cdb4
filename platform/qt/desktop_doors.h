#pragma once

#include "platform/doors.h"

// Where the doors lead on a desktop.

int ShowMessageBox(MessageBoxRequest const& request);
void OpenInBrowser(std::string const& address);
std::optional<std::string> ShowFileDialog(FileDialogRequest const& request);
bool ShowPrintDialog(QPrinter& printer, std::string& fault);

/// Where a system has file and print dialogs of its own that users know, those are shown; elsewhere the toolkit's:
/// its file dialogs alone show the prompt.
bool HasFamiliarDialogs();
