#pragma once

#include "frame/conversions.h"
#include "frame/mainscreen.h"

// What the main window's fields say about the session as a whole.

/// The number of entries that numstudents shows, without a fraction; 0 while the field is empty.
[[nodiscard]] Integer EntryCount(class mainscreen& window);

/// Whether a hidden flag field holds "1".
[[nodiscard]] bool IsSet(TextField const& flag);
