#pragma once

class QDialog;

/// Runs a dialog over the window that it is a child of, and makes that window active again when the dialog has
/// closed: a window manager may choose another one. Returns the dialog's result.
int RunDialog(QDialog& dialog);

/// Whether the system has file and print dialogs of its own that users know, which are shown then. Elsewhere the
/// toolkit's are shown: only its file dialogs show the prompt.
bool HasFamiliarDialogs();
