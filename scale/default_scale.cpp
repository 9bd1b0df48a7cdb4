#include "frame/conversions.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "scale/scale_fields.h"

// The 24 fields of the scale, and the Default button.

std::array<ScaleField, kScaleFieldCount> const kScaleFields = {{
#define FIELD(field, text, check) {&mainscreen::field, text},
#include "scale/scale_fields.def"
#undef FIELD
}};

ScaleNumbers ReadScale(class mainscreen& window)
{
    ScaleNumbers numbers{};
    for (std::size_t i = 0; i < kScaleFieldCount; ++i) {
        numbers[i] = Val((window.*kScaleFields[i].field)().Text());
    }
    return numbers;
}

void WriteDefaultScale(class mainscreen& window)
{
    for (ScaleField const& bound : kScaleFields) {
        (window.*bound.field)().Text(bound.defaultText);
    }
}

void ForceTopOfScale(class mainscreen& window)
{
    if (Val(window.aplusmax().Text()) != 100.0) {
        window.aplusmax().Text("100");
    }
}

void mainscreen::PushButton3_Action()
{
    if (EntryCount(*this) != 0) {
        MsgBox(
            "Changing the grading scale to the Default cannot happen until you have reset the scores already "
            "entered.");
        return;
    }
    WriteDefaultScale(*this);
}
