#include "frame/conversions.h"

#include "frame/read_number.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

// Streams with the classic locale convert the digits: they are exact on every platform, while the C functions
// follow the user's locale and std::from_chars for doubles is not available everywhere.

namespace {

constexpr Double kLargest = std::numeric_limits<Double>::max();
constexpr Integer kLowestInteger = std::numeric_limits<Integer>::min();
constexpr Integer kHighestInteger = std::numeric_limits<Integer>::max();
constexpr int kStrDigits = 7;
constexpr int kFormatDigits = 15;

/// A finite number as a sign, decimal digits, and the power of ten of the first digit.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

/// The number rounded to this many significant digits, exact ties to even.
Decimal Significant(Double number, int count)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::scientific << std::setprecision(count - 1) << std::fabs(number);
    std::string const text = stream.str();
    std::size_t const letter = text.find('e');
    Decimal decimal{std::signbit(number), text.substr(0, letter), std::stoi(text.substr(letter + 1))};
    std::erase(decimal.digits, '.');
    return decimal;
}

/// Plain notation. Decimals beyond the limit are cut, then trailing zeros dropped.
std::string Plain(Decimal const& decimal, std::size_t maxDecimals)
{
    std::string whole = "0";
    std::string fraction;
    if (decimal.exponent < 0) {
        fraction = std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + decimal.digits;
    } else {
        auto const point = static_cast<std::size_t>(decimal.exponent) + 1;
        std::string digits = decimal.digits;
        digits.resize(std::max(digits.size(), point), '0');
        whole = digits.substr(0, point);
        fraction = digits.substr(point);
    }
    fraction.resize(std::min(fraction.size(), maxDecimals));
    fraction.erase(fraction.find_last_not_of('0') + 1);
    std::string const text = fraction.empty() ? whole : whole + "." + fraction;
    return decimal.negative && text != "0" ? "-" + text : text;
}

/// Whether the value needs no decimals: it is whole, infinite or not a number.
bool IsPlainValue(Double number)
{
    return !std::isfinite(number) || std::trunc(number) == number;
}

std::string PlainValue(Double number)
{
    if (std::isnan(number)) {
        return "NaN";
    }
    Double const finite = std::clamp(number, -kLargest, kLargest) + 0.0; // -0.0 + 0.0 is 0.0
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(0) << finite;
    return stream.str();
}

} // namespace

Double Val(std::string_view text)
{
    return ReadNumber(text, false);
}

Double CDbl(std::string_view text)
{
    return ReadNumber(text, true);
}

std::string Str(Double number)
{
    if (IsPlainValue(number)) {
        return PlainValue(number);
    }
    int const exponent = Significant(number, kFormatDigits).exponent;
    Decimal const decimal = Significant(number, std::max(kStrDigits, exponent + 1));
    return Plain(decimal, std::string::npos);
}

std::string Str(Integer number)
{
    return std::to_string(number);
}

std::string Format(Double number, std::string_view pattern)
{
    if (IsPlainValue(number)) {
        return PlainValue(number);
    }
    assert(pattern.find('.') != std::string_view::npos);
    std::size_t const decimals = pattern.size() - pattern.find('.') - 1;
    return Plain(Significant(number, kFormatDigits), decimals);
}

Double Round(Double number)
{
    // Not std::round, which makes 0.49999999999999994 a 1 on Windows.
    Double const whole = std::trunc(number);
    bool const isBelowHalf = std::fabs(number - whole) < 0.5; // the difference is exact
    return isBelowHalf ? whole : whole + std::copysign(1.0, number);
}

Integer ToInteger(Double number)
{
    if (std::isnan(number)) {
        return 0;
    }
    if (number <= static_cast<Double>(kLowestInteger)) {
        return kLowestInteger;
    }
    // The highest Integer has no Double of its own; the nearest is one above it.
    return number >= static_cast<Double>(kHighestInteger) ? kHighestInteger : static_cast<Integer>(number);
}

Integer Sum(Integer one, Integer other)
{
    if (other > 0) {
        return one > kHighestInteger - other ? kHighestInteger : one + other;
    }
    return one < kLowestInteger - other ? kLowestInteger : one + other;
}
