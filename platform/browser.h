#pragma once

#include <string_view>

/// Opens an address in the user's browser.
void ShowURL(std::string_view address);
