#pragma once

// The start of the program, in the order in which the functions call each other.

/// Runs the program: starts it up, and returns when the event loop has ended or an exception has ended it.
void _Main();

/// What must stand before the toolkit runs: the application object.
void _EarlyStartup();
void _InitFileTypes();
void _NewAppInstance();
void _ApplicationAddMenuHandlers();

/// What needs the toolkit: the main window.
void _LateStartup();
void _MakeDefaultView();
