#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "scale/bands.h"

// The repair makes the scale sound from the top down: higher bounds are trusted, lower ones move.

namespace {

constexpr Double kTopMinimum = 99.0; // replaces an A+ minimum above the top

/// Whether a bound does not fit the one above it: a maximum must be exactly one below the minimum of the
/// higher band, a minimum must not be above its own maximum.
bool IsWrong(ScaleNumbers const& numbers, std::size_t index)
{
    Double const above = numbers[index - 1];
    return IsMaximum(index) ? above - numbers[index] != 1.0 : numbers[index] > above;
}

/// Moves each wrong bound below the one above it, in the field and in the numbers. Returns whether any was
/// changed.
bool Repair(class mainscreen& window, ScaleNumbers& numbers)
{
    // aplusmin is compared with the maximum that was read, not with the 100 that replaces it.
    bool isRepaired = ForceTopOfScale(window);
    for (std::size_t index = 1; index < numbers.size(); ++index) {
        if (IsWrong(numbers, index)) {
            bool const isTopBand = index == bound::aplusmin;
            numbers[index] = isTopBand ? kTopMinimum : numbers[index - 1] - 1.0;
            ScaleField(window, index).Text(Str(numbers[index]));
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
