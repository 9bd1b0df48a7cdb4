#include "scale/bands.h"

#include <cassert>

namespace {

constexpr Double kTop = 100.0;

} // namespace

TextField& ScaleField(class mainscreen& window, std::size_t index)
{
    assert(index < bound::kCount);
    Band const& band = kBands[index / 2];
    return (window.*(IsMaximum(index) ? band.maximum : band.minimum))();
}

ScaleNumbers ReadScale(class mainscreen& window)
{
    ScaleNumbers numbers{};
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        numbers[index] = Val(ScaleField(window, index).Text());
    }
    return numbers;
}

bool ForceTopOfScale(class mainscreen& window)
{
    bool const isForced = Val(window.aplusmax().Text()) != kTop;
    if (isForced) {
        window.aplusmax().Text(Str(kTop));
    }
    return isForced;
}
