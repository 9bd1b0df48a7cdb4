#pragma once

#include "frame/conversions.h"
#include "frame/mainscreen.h"

#include <array>
#include <cstddef>
#include <string_view>

/// One band of the grading scale.
struct Band {
    std::string_view letter;
    std::string_view inNotice; ///< with its article: "an A+"
    FieldAccessor maximum;
    FieldAccessor minimum;
    FieldAccessor tally; ///< counts the entries of the letter's family
};

/// The bands, best first.
inline constexpr auto kBands = std::to_array<Band>({
#define BAND(letter, inNotice, maximum, maximumDefault, minimum, minimumDefault, tally)                      \
    {letter, inNotice, &mainscreen::maximum, &mainscreen::minimum, &mainscreen::tally},
#include "frame/bands.def"
});

/// The index of each bound in the scale: bound::aplusmax is 0, bound::aplusmin is 1 and so on. Maxima are even.
namespace bound {
enum Index : std::size_t {
#define SCALE_FIELD(name, defaultValue) name,
#include "frame/bands.def"
    kCount
};
} // namespace bound

static_assert(bound::kCount == 2 * kBands.size());

[[nodiscard]] constexpr bool IsMaximum(std::size_t index)
{
    return index % 2 == 0;
}

/// The numbers in the fields, by the index of the bound.
using ScaleNumbers = std::array<Double, bound::kCount>;

/// The index must be below bound::kCount.
[[nodiscard]] TextField& ScaleField(class mainscreen& window, std::size_t index);

/// Reads all bounds with Val, so a text that is no number counts as 0.
[[nodiscard]] ScaleNumbers ReadScale(class mainscreen& window);

/// Sets aplusmax to 100 if it reads as anything else. Returns whether it did; shows no notice.
bool ForceTopOfScale(class mainscreen& window);
