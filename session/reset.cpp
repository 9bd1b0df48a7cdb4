#include "frame/clear_results.h"
#include "frame/form_state.h"
#include "platform/message_box.h"

/// Unlike the menu command the button also empties the points of the last press, and the count first: from then on the
/// number of points is no longer protected.
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

/// All entries of a session are scored against the same number of points, so the field gets back its
/// text at the last press of Grade.
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
