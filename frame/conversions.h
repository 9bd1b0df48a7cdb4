#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The conversions between text and numbers. All state of a session is text, so every handler starts and ends
// with these. None fails, none depends on the locale, and Val and CDbl read back what Str and Format write.

using Integer = std::int64_t;
using Double = double;

/// The plain decimal number at the start of a text, after blanks and tabs; 0 if there is none. A comma is a
/// thousands separator in front of full groups of three ("1,000"), else a decimal comma ("7,5"). A number too
/// large becomes the largest finite one of its sign, one too small becomes 0. An exponent is not read.
[[nodiscard]] Double Val(std::string_view text);

/// Like Val, but reads an exponent right after the digits: "1e3" is 1000 here and 1 there.
[[nodiscard]] Double CDbl(std::string_view text);

/// Plain decimal text without an exponent: a whole value in full, any other with at most 7 significant digits,
/// but always with all digits in front of the point. Not-a-number becomes "NaN", an infinity the largest finite
/// number of its sign, negative zero "0".
[[nodiscard]] std::string Str(Double number);
[[nodiscard]] std::string Str(Integer number);

/// The number with at most as many decimals as the pattern has characters after its point: "#.##" or "#.###". Further
/// decimals are cut, not rounded, but only after rounding to 15 digits: 28.999999999999996 becomes "29".
[[nodiscard]] std::string Format(Double number, std::string_view pattern);

/// The nearest whole number; halves are rounded away from zero.
[[nodiscard]] Double Round(Double number);

/// Truncates toward zero. A number beyond the range of Integer becomes its nearest bound, not-a-number 0.
[[nodiscard]] Integer ToInteger(Double number);

/// The sum, or the bound of Integer that it would exceed.
[[nodiscard]] Integer Sum(Integer one, Integer other);
