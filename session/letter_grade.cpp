#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "scale/scale_fields.h"
#include "session/letters.h"

#include <algorithm>

std::array<Letter, 13> const kLetters = std::to_array<Letter>({
    {"A+", &mainscreen::agrade},
    {"A",  &mainscreen::agrade},
    {"A-", &mainscreen::agrade},
    {"B+", &mainscreen::bgrade},
    {"B",  &mainscreen::bgrade},
    {"B-", &mainscreen::bgrade},
    {"C+", &mainscreen::cgrade},
    {"C",  &mainscreen::cgrade},
    {"C-", &mainscreen::cgrade},
    {"D+", &mainscreen::dgrade},
    {"D",  &mainscreen::dgrade},
    {"D-", &mainscreen::dgrade},
    {"F",  &mainscreen::fgrade},
});

TextField* BucketOf(class mainscreen& window, std::string_view letter)
{
    auto const found = std::find_if(kLetters.begin(), kLetters.end(),
                                    [&](Letter const& known) { return known.text == letter; });
    return found == kLetters.end() ? nullptr : &(window.*found->bucket)();
}

/// The first test that holds gives the letter. A percentage in a gap between two bands keeps the letter of
/// the entry before it.
void mainscreen::percenttest()
{
    Double const read = CDbl(percentage().Text());
    ScaleNumbers const bounds = ReadScale(*this);
    Double const rounded = Round(read);

    std::size_t const bands = kScaleFieldCount / 2;
    for (std::size_t band = 0; band < bands; ++band) {
        bool const isTop = band == 0; // the best letter has no upper bound
        bool const isBelowMaximum = isTop || bounds[2 * band] >= rounded;
        if (isBelowMaximum && rounded >= bounds[2 * band + 1]) {
            lettergrade().Text(kLetters[band].text);
            return;
        }
    }
    if (bounds.back() > rounded) {
        lettergrade().Text(kLetters.back().text);
    }
}

void mainscreen::results()
{
    if (TextField* const bucket = BucketOf(*this, lettergrade().Text())) {
        bucket->Text(Str(Sum(ToInteger(Val(bucket->Text())), 1)));
    }
}
