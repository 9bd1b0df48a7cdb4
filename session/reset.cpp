#include "session/reset.h"

#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "session/history.h"

#include <initializer_list>

namespace {

void Empty(class mainscreen& window, std::initializer_list<FieldAccessor> fields)
{
    for (FieldAccessor const field : fields) {
        (window.*field)().Text("");
    }
}

void EmptyLastEntry(class mainscreen& window)
{
    Empty(window, {&mainscreen::correct, &mainscreen::lastmissed, &mainscreen::percentage,
                   &mainscreen::lettergrade, &mainscreen::average});
}

void EmptyTalliesAndHistory(class mainscreen& window)
{
    Empty(window, {&mainscreen::agrade, &mainscreen::bgrade, &mainscreen::cgrade, &mainscreen::dgrade,
                   &mainscreen::fgrade, &mainscreen::EditField1});
    DeleteHistory(window);
}

} // namespace

void ClearResults(class mainscreen& window)
{
    EmptyLastEntry(window);
    Empty(window, {&mainscreen::numstudents});
    EmptyTalliesAndHistory(window);
}

/// Unlike the menu command the button also forgets the points of the last press, and it starts with the count:
/// from then on nothing protects the number of points.
void mainscreen::BevelButton1_Action()
{
    Empty(*this, {&mainscreen::numstudents, &mainscreen::pointstemp, &mainscreen::total});
    EmptyLastEntry(*this);
    EmptyTalliesAndHistory(*this);
}

bool mainscreen::_FileReset_Action()
{
    Empty(*this, {&mainscreen::total});
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
