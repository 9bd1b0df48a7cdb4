#pragma once

// The start of the program, in the order in which the functions call each other.

/// Starts the program and returns when the event loop or an exception has ended it.
void _Main();

/// Creates what must exist before the toolkit runs: the application object.
void _EarlyStartup();
void _InitFileTypes();
void _NewAppInstance();
void _ApplicationAddMenuHandlers();

/// Creates what needs the toolkit: the main window.
void _LateStartup();
void _MakeDefaultView();
