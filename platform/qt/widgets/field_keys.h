#pragma once

#include <QString>

class QKeyEvent;

// What a pressed key means.

/// Return or Enter, with whatever modifiers.
bool IsReturn(QKeyEvent const& event);

/// Tab, Shift+Tab, Return or Enter, which the window handles, whichever control has the focus.
bool IsKeyOfWindow(QKeyEvent const& event);

/// A key with Alt or Super and without Ctrl, which opens menus and types nothing. On macOS Option types.
bool IsAltKey(QKeyEvent const& event);

/// A key that a field reports: not a modifier, layout switch, dead key or media key.
bool IsKeyForField(QKeyEvent const& event);

/// A key that inserts its text into a field.
bool TypesText(QKeyEvent const& event);

/// The key as text, or its name if it has none.
QString KeyText(QKeyEvent const& event);
