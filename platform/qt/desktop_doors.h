#pragma once

#include "platform/doors.h"

// Where the doors lead on a desktop.

int ShowMessageBox(MessageBoxRequest const& request);
void OpenInBrowser(std::string const& address);
std::optional<std::string> ShowFileDialog(FileDialogRequest const& request);
bool ShowPrintDialog(QPrinter& printer);
