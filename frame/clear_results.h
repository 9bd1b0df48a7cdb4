#pragma once

#include "frame/mainscreen.h"

#include <array>

// What the entries have left in the main window, and how it is cleared: by the resets, by Undo, and by a change of the
// scale in the middle of a session.

/// The lists with one row for each entry; session/history.h says what they hold.
inline constexpr std::array kHistory = {&mainscreen::ListBox1, &mainscreen::ListBox2, &mainscreen::ListBox3,
                                        &mainscreen::ListBox4, &mainscreen::ListBox5};

/// Empties the typed number correct, the results of the last entry and the running sum.
void ClearLastEntry(class mainscreen& window);

/// Empties the tallies, the class average and the history.
void ClearTalliesAndHistory(class mainscreen& window);

/// Both, with the number of entries between them. The number of points and the scale stay.
void ClearResults(class mainscreen& window);
