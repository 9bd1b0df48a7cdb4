#include "frame/conversions.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "session/clear.h"

#include <string>

// The guard keeps the scale from changing under entered data: it asks at every key, and puts the text back
// that the field had when it gained the focus. The minimums besides check the boundary above their band.

namespace {

void StoreText(class mainscreen& window, TextField const& sender)
{
    if (EntryCount(window) >= 1) {
        window.fileresetfield().Text(sender.Text());
    }
}

void RestoreText(class mainscreen& window, TextField& sender)
{
    Integer const stored = ToInteger(CDbl(window.fileresetfield().Text()));
    if (EntryCount(window) >= 1 && stored > 0) {
        sender.Text(window.fileresetfield().Text());
    }
    window.fileresetfield().Text("");
}

/// A boundary that is off comes out in whole numbers, with or without entries.
void CheckBoundary(TextField& upper, TextField& lower, std::string const& above, std::string const& below)
{
    Double const minimum = CDbl(upper.Text());
    Double const maximum = CDbl(lower.Text());
    if (minimum - maximum > 1.0 || 1.0 > minimum - maximum) {
        upper.Text(Str(Round(minimum)));
        lower.Text(Str(Round(minimum) - 1.0));
        MsgBox("The difference between the minimum for " + above + " and the maximum for " + below +
               " must be equal to one.");
    }
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

// The handlers of the scale fields: amin_KeyDown, amin_GotFocus, amin_TextChange and so on for all 24. A key
// always goes on to its field.
#define NO_CHECK
#define BOUNDARY(upper, lower, above, below) CheckBoundary(upper(), lower(), above, below);
#define FIELD(field, text, check)                                                                            \
    bool mainscreen::field##_KeyDown(TextField& /*sender*/, std::string const& /*key*/)                      \
    {                                                                                                        \
        shouldreset();                                                                                       \
        return false;                                                                                        \
    }                                                                                                        \
    void mainscreen::field##_GotFocus(TextField& sender)                                                     \
    {                                                                                                        \
        check StoreText(*this, sender);                                                                      \
    }                                                                                                        \
    void mainscreen::field##_TextChange(TextField& sender)                                                   \
    {                                                                                                        \
        RestoreText(*this, sender);                                                                          \
    }
#include "scale/scale_fields.def"
#undef FIELD
#undef BOUNDARY
#undef NO_CHECK
