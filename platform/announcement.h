#pragma once

#include <string_view>

/// Makes a screen reader say a text. Without one nothing happens.
void Announce(std::string_view text);
