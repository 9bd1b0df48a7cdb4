#pragma once

#include "frame/conversions.h"
#include "frame/windows.h"

// The history of a session: five lists of the main window that stand in step, one row in each for an entry.
// ListBox1 shows its number and percentage; the hidden ones hold the number missed (ListBox2) and the letter
// (ListBox4) of the entry, the class average (ListBox3) and the running sum (ListBox5) after it.

/// Appends the record of the entry whose results stand in the fields. The number of entries counts it
/// already.
void AppendEntry(class mainscreen& window, Integer entrycount, Double percent, Double nummissed,
                 Integer classaverage);

/// Removes one row, counted from 0, of all five lists.
void RemoveEntry(class mainscreen& window, Integer row);

/// Empties all five lists.
void DeleteHistory(class mainscreen& window);
