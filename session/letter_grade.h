#pragma once

#include "frame/instances.h"
#include "platform/text_field.h"

#include <string_view>

/// The tally that counts entries with this letter; null if the text is not a letter grade.
[[nodiscard]] TextField* TallyOf(class mainscreen& window, std::string_view letter);
