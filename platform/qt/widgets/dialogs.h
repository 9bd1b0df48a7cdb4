#pragma once

class QDialog;

/// Runs a dialog over the window that it is a child of, and makes that window active again when the dialog has
/// closed: a window manager may choose another one. Returns the dialog's result.
int RunDialog(QDialog& dialog);
