#pragma once

#include <optional>
#include <string>
#include <string_view>

// What the characters of a text are, as the Unicode standard classifies them.

/// The characters of a UTF-8 text. Invalid bytes become U+FFFD.
[[nodiscard]] std::u32string Characters(std::string_view text);

/// The value of a decimal digit of whatever script, 0 to 9; nothing for any other character.
[[nodiscard]] std::optional<int> DigitValue(char32_t character);

/// A blank of whatever width, but no tab and no line break.
[[nodiscard]] bool IsBlank(char32_t character);
