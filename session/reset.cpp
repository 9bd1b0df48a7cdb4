#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "session/clear.h"
#include "session/history.h"

#include <initializer_list>

namespace {

using Field = TextField& (mainscreen::*)();

void Empty(class mainscreen& window, std::initializer_list<Field> fields)
{
    for (Field const field : fields) {
        (window.*field)().Text("");
    }
}

/// What both orders of clearing end with.
void EmptyTallies(class mainscreen& window)
{
    Empty(window, {&mainscreen::agrade, &mainscreen::bgrade, &mainscreen::cgrade, &mainscreen::dgrade,
                   &mainscreen::fgrade, &mainscreen::EditField1});
    DeleteHistory(window);
}

void EmptyLastEntry(class mainscreen& window)
{
    Empty(window, {&mainscreen::correct, &mainscreen::lastmissed, &mainscreen::percentage,
                   &mainscreen::lettergrade, &mainscreen::average});
}

} // namespace

void ClearResults(class mainscreen& window)
{
    EmptyLastEntry(window);
    Empty(window, {&mainscreen::numstudents});
    EmptyTallies(window);
}

/// The button forgets the points of the last press as well, and does so first of all.
void mainscreen::BevelButton1_Action()
{
    Empty(*this, {&mainscreen::numstudents, &mainscreen::pointstemp, &mainscreen::total});
    EmptyLastEntry(*this);
    EmptyTallies(*this);
}

bool mainscreen::_FileReset_Action()
{
    Empty(*this, {&mainscreen::total});
    ClearResults(*this);
    return false;
}

/// The points must not change under entered data.
void mainscreen::total_TextChange(TextField& /*sender*/)
{
    if (!(CDbl(numstudents().Text()) >= 1.0)) {
        return;
    }
    MsgBox("To change the number of points, you must first reset the current data.");
    total().Text("");
    total().Text(pointstemp().Text());
}
