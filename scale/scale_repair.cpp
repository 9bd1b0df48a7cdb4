#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "scale/scale_fields.h"

// The repair makes the scale sound from the top down: what stands higher is trusted, what stands lower moves.

namespace {

constexpr Double kTop = 100.0;
constexpr Double kHighestMinimumBelowTop = 99.0;

/// Carries out the 24 tests in the order of the fields. A maximum follows the minimum above it; a minimum
/// above its own maximum goes to one below it. Gives whether anything was repaired.
bool Repair(class mainscreen& window, ScaleNumbers& numbers)
{
    bool repaired = false;
    auto const set = [&](std::size_t i, Double number) {
        numbers[i] = number;
        (window.*kScaleFields[i].field)().Text(Str(number));
        repaired = true;
    };
    // The working number of the top stays as it was read: the next test compares with that.
    if (numbers[0] < kTop || numbers[0] > kTop) {
        window.aplusmax().Text("100");
        repaired = true;
    }
    if (numbers[1] > numbers[0]) {
        set(1, kHighestMinimumBelowTop);
    }
    for (std::size_t i = 2; i < kScaleFieldCount; ++i) {
        bool const isMaximum = i % 2 == 0;
        bool const isWrong = isMaximum ? numbers[i - 1] - numbers[i] != 1.0 : numbers[i] > numbers[i - 1];
        if (isWrong) {
            set(i, numbers[i - 1] - 1.0);
        }
    }
    return repaired;
}

} // namespace

void mainscreen::gradingscaletest()
{
    ScaleNumbers numbers = ReadScale(*this);
    bool const repaired = Repair(*this, numbers);
    if (repaired) {
        MsgBox("An attempt was made to fix the grading scale. You should check these modifications before "
               "saving the settings.");
    }
    // A scale that ends below zero is not marked: a save refuses it with a notice of its own.
    bool const endsBelowZero = 0.0 > numbers.back();
    if (repaired && !endsBelowZero) {
        foundaproblem().Text(Str(Integer{1}));
    }
}
