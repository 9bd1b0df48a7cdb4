#pragma once

#include <string_view>

/// Makes a running screen reader say the text.
void Announce(std::string_view text);
