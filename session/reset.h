#pragma once

#include "frame/windows.h"

/// Deletes what the entries have produced: first the typed number correct and the results of the last entry,
/// then running sum, count, tallies and average, last the history. The points and the scale stay.
void ClearResults(class mainscreen& window);
