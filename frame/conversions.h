#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The conversions between text and numbers. All state of a session is text, so every handler starts and ends
// with these. None fails, none depends on the locale, and what one of them writes comes back through Val and
// CDbl as the number that it shows.

using Integer = std::int64_t;
using Double = double;

/// The plain decimal number that a text starts with, behind blanks and tabs; 0 if it starts with none.
/// A comma is a thousands separator in front of full groups of three ("1,000"), else a decimal comma ("7,5").
/// A number too large is the largest finite one of its sign, one too small is 0. An exponent is not read.
[[nodiscard]] Double Val(std::string_view text);

/// The same as Val, but for an exponent that follows the digits directly: "1e3" is 1000 here and 1 there.
[[nodiscard]] Double CDbl(std::string_view text);

/// Plain decimal text, never with an exponent: a whole value in full, any other with at most 7 significant
/// digits but never fewer than stand in front of the point. Not-a-number is "NaN", an infinity the largest
/// finite number of its sign, negative zero "0".
[[nodiscard]] std::string Str(Double number);
[[nodiscard]] std::string Str(Integer number);

/// The number with at most as many decimals as the pattern ("#.##") has signs behind its point. Further
/// digits are cut, not rounded, but digits past the 15th are noise: 28.999999999999996 is "29".
[[nodiscard]] std::string Format(Double number, std::string_view pattern);

/// The nearest whole number; halves go away from zero.
[[nodiscard]] Double Round(Double number);

/// Truncation toward zero. Beyond an Integer's bounds it is the bound, not-a-number is 0.
[[nodiscard]] Integer ToInteger(Double number);

/// The sum, or the bound that it would pass.
[[nodiscard]] Integer Sum(Integer one, Integer other);
