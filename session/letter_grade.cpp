#include "session/letter_grade.h"

#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "scale/bands.h"

#include <optional>

namespace {

constexpr std::string_view kFailing = "F"; // everything below the lowest band

/// The letter of the first band that holds the percentage; none if it is in a gap between two bands.
std::optional<std::string_view> LetterOf(Double percentage, ScaleNumbers const& numbers)
{
    for (std::size_t band = 0; band < kBands.size(); ++band) {
        bool const isTop = band == 0; // extra points can bring an entry above 100 percent
        if ((isTop || numbers[2 * band] >= percentage) && percentage >= numbers[2 * band + 1]) {
            return kBands[band].letter;
        }
    }
    return numbers.back() > percentage ? std::optional(kFailing) : std::nullopt;
}

} // namespace

TextField* TallyOf(class mainscreen& window, std::string_view letter)
{
    for (Band const& band : kBands) {
        if (band.letter == letter) {
            return &(window.*band.tally)();
        }
    }
    return letter == kFailing ? &window.fgrade() : nullptr;
}

/// A percentage in a gap between two bands keeps the letter of the entry before it.
void mainscreen::percenttest()
{
    Double const rounded = Round(CDbl(percentage().Text()));
    if (std::optional<std::string_view> const letter = LetterOf(rounded, ReadScale(*this))) {
        lettergrade().Text(*letter);
    }
}

void mainscreen::results()
{
    if (TextField* const tally = TallyOf(*this, lettergrade().Text())) {
        tally->Text(Str(Sum(ToInteger(Val(tally->Text())), 1)));
    }
}
