#pragma once

class QDialog;

/// Runs a dialog and then activates its parent window again, since a window manager may activate another one. Returns
/// the dialog's result.
int RunDialog(QDialog& dialog);

/// Whether a message box or dialog is open. Qt blocks keys and clicks behind it, but not assistive programs, so
/// whatever they ask for must check this first and do nothing.
bool IsDialogOpen();

/// Whether to show the system's own file and print dialogs. Where this is false, Qt's are shown: on Linux only its file
/// dialogs show the prompt.
bool HasNativeDialogs();
