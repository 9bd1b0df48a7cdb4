#pragma once

#include <string>
#include <string_view>

/// Opens an address in the user's browser.
void ShowURL(std::string_view address);

/// The same, as the desktop does it.
void OpenInBrowser(std::string const& address);
