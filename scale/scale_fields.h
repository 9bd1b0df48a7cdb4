#pragma once

#include "frame/windows.h"
#include "platform/text_field.h"

#include <array>
#include <cstddef>
#include <string_view>

inline constexpr std::size_t kScaleFieldCount = 24;

/// One bound of the scale: the field that holds it and its text in the default scale.
struct ScaleField {
    TextField& (mainscreen::*field)();
    std::string_view defaultText;
};

/// The bounds in their fixed order: aplusmax, aplusmin, amax and so on to dminusmin. A band's maximum stands
/// at an even place, its minimum right behind it.
extern std::array<ScaleField, kScaleFieldCount> const kScaleFields;

/// The number that a bound's text stands for, read with Val.
using ScaleNumbers = std::array<double, kScaleFieldCount>;
[[nodiscard]] ScaleNumbers ReadScale(class mainscreen& window);

/// Writes the default text into each of the 24 fields.
void WriteDefaultScale(class mainscreen& window);

/// Sets aplusmax to 100, without a word, if it reads as anything else.
void ForceTopOfScale(class mainscreen& window);
