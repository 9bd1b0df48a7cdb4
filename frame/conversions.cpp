#include "frame/conversions.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

// Streams with the classic locale carry out the digits: they are exact on every platform, where the C
// functions follow the user's decimal comma and the newer character conversions don't exist everywhere.

namespace {

constexpr Double kLargest = std::numeric_limits<Double>::max();
constexpr int kStrDigits = 7;
constexpr int kFormatDigits = 15;

/// A finite number as a sign, decimal digits, and the power of ten of the first digit.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

/// The number at so many significant digits, correctly rounded, exact ties to even.
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

/// The decimal laid out plainly, with the decimals past the limit cut and no zeros at the end.
std::string Plain(Decimal const& decimal, std::size_t mostDecimals)
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
    fraction.resize(std::min(fraction.size(), mostDecimals));
    fraction.erase(fraction.find_last_not_of('0') + 1);
    std::string const text = fraction.empty() ? whole : whole + "." + fraction;
    return decimal.negative && text != "0" ? "-" + text : text;
}

/// A value that needs no decimals: whole, infinite or no number.
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

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::size_t DigitsAt(std::string_view text, std::size_t start)
{
    std::size_t end = start;
    while (end < text.size() && IsDigit(text[end])) {
        ++end;
    }
    return end - start;
}

/// The whole digits of a number, without the commas between their groups of three.
std::string TakeWhole(std::string_view& text)
{
    constexpr std::size_t kGroup = 3;
    std::size_t const first = DigitsAt(text, 0);
    std::string digits(text.substr(0, first));
    text.remove_prefix(first);
    bool const mayGroup = first >= 1 && first <= kGroup && digits[0] != '0';
    while (mayGroup && !text.empty() && text[0] == ',' && DigitsAt(text, 1) == kGroup) {
        digits += text.substr(1, kGroup);
        text.remove_prefix(kGroup + 1);
    }
    return digits;
}

/// The digits behind the decimal point. After groups of thousands a comma is no decimal comma.
std::string TakeFraction(std::string_view& text, bool grouped)
{
    bool const isPoint = !text.empty() && text[0] == '.';
    bool const isComma = !text.empty() && text[0] == ',' && !grouped && DigitsAt(text, 1) > 0;
    if (!isPoint && !isComma) {
        return "";
    }
    std::size_t const count = DigitsAt(text, 1);
    std::string digits(text.substr(1, count));
    text.remove_prefix(count + 1);
    return digits;
}

/// The exponent that follows directly, 0 if there is none; a huge one is cut to what decides all the same.
int TakeExponent(std::string_view text)
{
    constexpr int kDecides = 1'000'000'000;
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) {
        return 0;
    }
    bool const hasSign = text.size() > 1 && (text[1] == '+' || text[1] == '-');
    bool const isNegative = hasSign && text[1] == '-';
    int exponent = 0;
    for (char const digit : text.substr(hasSign ? 2 : 1)) {
        if (!IsDigit(digit) || exponent >= kDecides / 10) {
            break;
        }
        exponent = 10 * exponent + (digit - '0');
    }
    return isNegative ? -exponent : exponent;
}

/// The value of 0.digits times a power of ten; digits start with another one than 0.
Double ValueOf(std::string const& digits, std::int64_t exponent)
{
    constexpr int kTooLarge = 310; // 1e309 is past the largest finite number
    constexpr int kTooSmall = -330;
    if (exponent > kTooLarge) {
        return kLargest;
    }
    if (exponent < kTooSmall) {
        return 0.0;
    }
    std::istringstream stream("0." + digits + "e" + std::to_string(exponent));
    stream.imbue(std::locale::classic());
    Double value = 0.0;
    stream >> value;
    return std::min(value, kLargest);
}

Double Read(std::string_view text, bool withExponent)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    bool const hasSign = !text.empty() && (text[0] == '+' || text[0] == '-');
    bool const isNegative = hasSign && text[0] == '-';
    text.remove_prefix(hasSign ? 1 : 0);

    std::size_t const length = text.size();
    std::string const whole = TakeWhole(text);
    bool const grouped = length - text.size() > whole.size();
    std::string const fraction = TakeFraction(text, grouped);
    std::string digits = whole + fraction;
    std::size_t const leading = std::min(digits.find_first_not_of('0'), digits.size());
    if (leading == digits.size()) {
        return 0.0;
    }
    digits.erase(0, leading);
    auto const magnitude = static_cast<std::int64_t>(whole.size()) - static_cast<std::int64_t>(leading);
    Double const value = ValueOf(digits, magnitude + (withExponent ? TakeExponent(text) : 0));
    return isNegative ? -value : value;
}

} // namespace

Double Val(std::string_view text)
{
    return Read(text, false);
}

Double CDbl(std::string_view text)
{
    return Read(text, true);
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
    std::size_t const decimals = pattern.size() - pattern.find('.') - 1;
    return Plain(Significant(number, kFormatDigits), decimals);
}

Double Round(Double number)
{
    // std::round is not right everywhere: Windows has one that makes 0.49999999999999994 a 1.
    Double const whole = std::trunc(number);
    bool const isBelowHalf = std::fabs(number - whole) < 0.5; // the difference is exact
    return isBelowHalf ? whole : whole + std::copysign(1.0, number);
}

Integer ToInteger(Double number)
{
    constexpr Integer kLow = std::numeric_limits<Integer>::min();
    constexpr Integer kHigh = std::numeric_limits<Integer>::max();
    if (std::isnan(number)) {
        return 0;
    }
    if (number <= static_cast<Double>(kLow)) {
        return kLow;
    }
    // The highest Integer has no Double of its own; the nearest is one above it.
    return number >= static_cast<Double>(kHigh) ? kHigh : static_cast<Integer>(number);
}

Integer Sum(Integer one, Integer other)
{
    constexpr Integer kLow = std::numeric_limits<Integer>::min();
    constexpr Integer kHigh = std::numeric_limits<Integer>::max();
    if (other > 0) {
        return one > kHigh - other ? kHigh : one + other;
    }
    return one < kLow - other ? kLow : one + other;
}
