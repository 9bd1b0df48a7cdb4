#include "scale/bands.h"

#include <cassert>

namespace {

constexpr Double kTop = 100.0;

} // namespace

TextField& ScaleField(class mainscreen& window, std::size_t place)
{
    assert(place < bound::kCount);
    Band const& band = kBands[place / 2];
    return (window.*(IsMaximum(place) ? band.maximum : band.minimum))();
}

ScaleNumbers ReadScale(class mainscreen& window)
{
    ScaleNumbers numbers{};
    for (std::size_t place = 0; place < numbers.size(); ++place) {
        numbers[place] = Val(ScaleField(window, place).Text());
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
