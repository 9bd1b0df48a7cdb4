#include "frame/read_number.h"

#include "platform/characters.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>

namespace {

/// The ASCII character that means the same in a number, or "?".
char ToAscii(char32_t character)
{
    constexpr char32_t kAsciiEnd = 0x80;
    if (character < kAsciiEnd) {
        return static_cast<char>(character);
    }
    if (std::optional<int> const digit = DigitValue(character)) {
        return static_cast<char>('0' + *digit);
    }
    switch (character) {
    case U'\u066B': // Arabic decimal separator
    case U'\uFF0E': // full-width full stop
        return '.';
    case U'\u066C': // Arabic thousands separator
    case U'\uFF0C': // full-width comma
        return ',';
    case U'\u2212': // minus sign
    case U'\uFF0D': // full-width hyphen-minus
        return '-';
    case U'\uFF0B': // full-width plus sign
        return '+';
    default:
        return IsBlank(character) ? ' ' : '?';
    }
}

/// Replaces the digits, signs and blanks of all scripts by those of ASCII.
std::string ToAscii(std::string_view text)
{
    std::string ascii;
    for (char32_t const character : Characters(text)) {
        ascii += ToAscii(character);
    }
    return ascii;
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

/// Removes the digits in front of the decimal point from the text and returns them without the commas between
/// groups of three.
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

/// Removes the decimal point and the digits behind it from the text and returns those digits. After groups of
/// thousands a comma is not a decimal comma.
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

/// The exponent at the start of the text, 0 if there is none. Reading stops where more digits can't matter.
int TakeExponent(std::string_view text)
{
    constexpr int kLargeEnough = 1'000'000'000;
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) {
        return 0;
    }
    bool const hasSign = text.size() > 1 && (text[1] == '+' || text[1] == '-');
    bool const isNegative = hasSign && text[1] == '-';
    int exponent = 0;
    for (char const digit : text.substr(hasSign ? 2 : 1)) {
        if (!IsDigit(digit) || exponent >= kLargeEnough / 10) {
            break;
        }
        exponent = 10 * exponent + (digit - '0');
    }
    return isNegative ? -exponent : exponent;
}

/// The value of 0.digits times a power of ten. The first digit must not be 0.
Double ValueOf(std::string const& digits, std::int64_t exponent)
{
    assert(!digits.empty() && digits[0] != '0');
    constexpr Double kLargest = std::numeric_limits<Double>::max();
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

} // namespace

Double ReadNumber(std::string_view typed, bool withExponent)
{
    std::string const ascii = ToAscii(typed);
    std::string_view text = ascii;
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
