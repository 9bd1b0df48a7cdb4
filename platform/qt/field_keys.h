#pragma once

#include <QString>

class QKeyEvent;

// What a key pressed in a text field is.

/// Tab, Shift+Tab, Return or Enter: the window's, whichever control has the focus.
bool IsKeyOfWindow(QKeyEvent const& event);

/// A key that only modifies others.
bool IsModifierAlone(QKeyEvent const& event);

/// A key that puts its text into the field.
bool TypesText(QKeyEvent const& event);

/// The key as text, or its name if it has none.
QString KeyText(QKeyEvent const& event);
