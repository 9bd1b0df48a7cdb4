#pragma once

#include "frame/conversions.h"
#include "frame/instances.h"

#include <string>

// The history of a session: five lists of the main window, each with one row per entry. ListBox1
// shows the number and the percentage of the entry. The others are hidden: number missed (ListBox2) and letter
// (ListBox4) of the entry, class average (ListBox3) and running sum (ListBox5) after it.

struct Entry {
    Integer number; ///< counted from 1
    Double percent;
    Double nummissed;
    std::string letter; ///< empty if none has been given yet
    Integer classaverage;
    Double runningsum;
};

void AppendEntry(class mainscreen& window, Entry const& entry);

/// Removes one row, counted from 0, of all five lists.
void RemoveEntry(class mainscreen& window, Integer row);
