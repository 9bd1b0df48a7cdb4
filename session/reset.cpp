#include "frame/clear_results.h"
#include "frame/form_state.h"
#include "platform/message_box.h"

/// Unlike the menu command the button also forgets the points of the last press, and it starts with the count:
/// from then on nothing protects the number of points.
void mainscreen::BevelButton1_Action()
{
    numstudents().Text("");
    pointstemp().Text("");
    total().Text("");
    ClearLastEntry(*this);
    ClearTalliesAndHistory(*this);
}

bool mainscreen::_FileReset_Action()
{
    total().Text("");
    ClearResults(*this);
    return false;
}

/// All entries of a session are scored against the same number of points, so it goes back to what the last
/// press of Grade found.
void mainscreen::total_TextChange(TextField& /*sender*/)
{
    if (EntryCount(*this) < 1) {
        return;
    }
    MsgBox("To change the number of points, you must first reset the current data.");
    total().Text("");
    total().Text(pointstemp().Text());
    EditUndo().IgnoreNextShortcut(); // what the key would undo has just been undone
}
