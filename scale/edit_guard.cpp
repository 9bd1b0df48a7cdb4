#include "frame/clear_results.h"
#include "frame/conversions.h"
#include "frame/form_state.h"
#include "platform/message_box.h"
#include "scale/bands.h"

#include <cassert>
#include <string>

// The guard keeps the scale from changing while there are entries: every key in a scale field asks first, and after a
// No the first change is undone to the text that the field had when it gained the focus. A minimum that gains the focus
// also checks the boundary above its band, which the teacher has just left.

namespace {

/// Repairs bounds that are not exactly one apart: the minimum is rounded, the maximum set one below it.
void CheckBoundaryAbove(class mainscreen& window, std::size_t band)
{
    assert(band > 0 && band < kBands.size());
    Band const& higher = kBands[band - 1];
    Band const& lower = kBands[band];
    TextField& minimumField = (window.*higher.minimum)();
    TextField& maximumField = (window.*lower.maximum)();

    Double const minimum = CDbl(minimumField.Text());
    if (minimum - CDbl(maximumField.Text()) == 1.0) {
        return;
    }
    minimumField.Text(Str(Round(minimum)));
    maximumField.Text(Str(Round(minimum) - 1.0));
    MsgBox("The difference between the minimum for " + std::string(higher.inNotice) +
           " and the maximum for " + std::string(lower.inNotice) + " must be equal to one.");
}

void HandleFocus(class mainscreen& window, TextField const& sender, std::size_t index)
{
    if (!IsMaximum(index) && index != bound::aplusmin) {
        CheckBoundaryAbove(window, index / 2);
    }
    if (EntryCount(window) >= 1) {
        window.fileresetfield().Text(sender.Text());
    }
}

void HandleChange(class mainscreen& window, TextField& sender)
{
    Integer const stored = ToInteger(CDbl(window.fileresetfield().Text()));
    if (EntryCount(window) >= 1 && stored > 0) {
        sender.Text(window.fileresetfield().Text());
        window.EditUndo().IgnoreNextShortcut(); // what the key would undo has just been undone
    }
    window.fileresetfield().Text("");
}

} // namespace

void mainscreen::shouldreset()
{
    if (EntryCount(*this) < 1) {
        return;
    }
    int const answer =
        MsgBox("You are about to change the grading scale in the middle of entering grades. This will cause "
               "Gradeloom to delete the data you have entered so far. Are you sure you want to do this?",
               kYesNoQuestion, "");
    if (answer == kYes) {
        ClearResults(*this);
    }
}

// The handlers of the scale fields: amin_KeyDown, amin_GotFocus, amin_TextChange and so on. A key always
// reaches its field: after a Yes it is wanted, after a No its change is undone.
#define SCALE_FIELD(name, defaultValue)                                                                      \
    bool mainscreen::name##_KeyDown(TextField& /*sender*/, std::string const& /*key*/)                       \
    {                                                                                                        \
        shouldreset();                                                                                       \
        return false;                                                                                        \
    }                                                                                                        \
    void mainscreen::name##_GotFocus(TextField& sender)                                                      \
    {                                                                                                        \
        HandleFocus(*this, sender, bound::name);                                                             \
    }                                                                                                        \
    void mainscreen::name##_TextChange(TextField& sender)                                                    \
    {                                                                                                        \
        HandleChange(*this, sender);                                                                         \
    }
#include "frame/bands.def"
