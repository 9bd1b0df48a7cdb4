#pragma once

#include "frame/conversions.h"
#include "frame/windows.h"

// The history of a session: five lists of the main window, with one row in each of them for every entry. ListBox1
// shows the number and the percentage of the entry. The others are hidden: number missed (ListBox2) and letter
// (ListBox4) of the entry, class average (ListBox3) and running sum (ListBox5) after it.

/// Appends the entry whose letter and running sum the fields show. The number of entries includes it.
void AppendEntry(class mainscreen& window, Integer entrycount, Double percent, Double nummissed,
                 Integer classaverage);

/// Removes one row, counted from 0, of all five lists.
void RemoveEntry(class mainscreen& window, Integer row);

/// Removes all rows of all five lists.
void DeleteHistory(class mainscreen& window);
