#pragma once

class QDialog;

/// Runs a dialog over the window that it is a child of, and makes that window active again when the dialog has
/// closed: a window manager may choose another one. Returns the dialog's result.
int RunDialog(QDialog& dialog);

/// Whether a message box or a dialog of the program is open. The toolkit keeps hands from what is behind it, but not
/// assistive programs: every act that one can ask for does nothing then.
bool IsDialogOpen();

/// Whether the system has file and print dialogs of its own that users know, which are shown then. Elsewhere the
/// toolkit's are shown: only its file dialogs show the prompt.
bool HasNativeDialogs();
