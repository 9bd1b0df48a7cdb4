#pragma once

#include <optional>
#include <string>
#include <string_view>

// Characters as the Unicode standard classifies them.

/// Decodes UTF-8; invalid bytes become U+FFFD.
[[nodiscard]] std::u32string Characters(std::string_view text);

/// 0 to 9 for a decimal digit of any script, nothing for any other character.
[[nodiscard]] std::optional<int> DigitValue(char32_t character);

/// A space of any width; tabs and line breaks are none.
[[nodiscard]] bool IsBlank(char32_t character);
