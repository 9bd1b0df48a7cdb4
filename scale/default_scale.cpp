#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "scale/bands.h"

namespace {

constexpr auto kDefaults = std::to_array<int>({
#define SCALE_FIELD(name, defaultValue) defaultValue,
#include "frame/bands.def"
});

/// Whether the default scale needs no repair and can be saved.
constexpr bool IsDefaultSound()
{
    for (std::size_t index = 1; index < kDefaults.size(); ++index) {
        int const step = kDefaults[index - 1] - kDefaults[index];
        if (IsMaximum(index) ? step != 1 : step < 0) {
            return false;
        }
    }
    return kDefaults.front() == 100 && kDefaults.back() >= 0;
}

static_assert(IsDefaultSound(), "the default scale has a gap, an overlap or a band upside down");

} // namespace

void mainscreen::PushButton3_Action()
{
    if (EntryCount(*this) != 0) {
        MsgBox(
            "Changing the grading scale to the Default cannot happen until you have reset the scores already "
            "entered.");
        return;
    }
#define SCALE_FIELD(name, defaultValue) name().Text(#defaultValue);
#include "frame/bands.def"
}
