#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "scale/bands.h"

// The repair makes the scale sound from the top down: higher bounds are trusted, lower ones move.

namespace {

constexpr Double kTopMinimum = 99.0; // where a minimum above the top goes

/// Whether a bound does not fit the one above it: a maximum must be exactly one below the minimum of the
/// higher band, a minimum must not be above its own maximum.
bool IsWrong(ScaleNumbers const& numbers, std::size_t place)
{
    Double const above = numbers[place - 1];
    return IsMaximum(place) ? above - numbers[place] != 1.0 : numbers[place] > above;
}

/// Moves each wrong bound below the one above it, in the field and in the numbers. Returns whether any was
/// changed.
bool Repair(class mainscreen& window, ScaleNumbers& numbers)
{
    // aplusmin is compared with the maximum that was read, not with the 100 that replaces it.
    bool isRepaired = ForceTopOfScale(window);
    for (std::size_t place = 1; place < numbers.size(); ++place) {
        if (IsWrong(numbers, place)) {
            bool const isTopBand = place == bound::aplusmin;
            numbers[place] = isTopBand ? kTopMinimum : numbers[place - 1] - 1.0;
            ScaleField(window, place).Text(Str(numbers[place]));
            isRepaired = true;
        }
    }
    return isRepaired;
}

} // namespace

void mainscreen::gradingscaletest()
{
    ScaleNumbers numbers = ReadScale(*this);
    if (!Repair(*this, numbers)) {
        return;
    }
    MsgBox("An attempt was made to fix the grading scale. You should check these modifications before "
           "saving the settings.");
    // A scale that ends below zero is not marked: a save refuses it with a notice of its own.
    if (numbers.back() >= 0.0) {
        foundaproblem().Text("1");
    }
}
