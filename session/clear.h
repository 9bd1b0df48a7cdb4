#pragma once

#include "frame/windows.h"

/// Empties what the entries have produced: the typed number correct, the results of the last entry, running
/// sum, count, tallies and average, then the history. The points, the scale and what guards them stay.
void ClearResults(class mainscreen& window);
