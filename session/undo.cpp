#include "frame/conversions.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "session/clear.h"
#include "session/history.h"
#include "session/letter_grade.h"

namespace {

/// Puts the fields back to the record of this row, which stays as the last one.
void RestoreRecord(class mainscreen& window, Integer row)
{
    window.numstudents().Text(Str(row + 1));
    window.average().Text(Str(CDbl(window.ListBox5().List(row))));
    window.percentage().Text(Str(CDbl(window.ListBox1().Cell(row, 1))));
    window.EditField1().Text(Str(CDbl(window.ListBox3().List(row))));
    window.lastmissed().Text(Str(CDbl(window.ListBox2().List(row))));
    window.lettergrade().Text(window.ListBox4().List(row));
}

/// Takes the last entry back, of at least two.
void StepBack(class mainscreen& window, Integer entrycount)
{
    if (TextField* const tally = TallyOf(window, window.ListBox4().List(entrycount - 1))) {
        tally->Text(Str(Sum(ToInteger(CDbl(tally->Text())), -1)));
    }
    RestoreRecord(window, entrycount - 2);
    RemoveEntry(window, entrycount - 1);
}

} // namespace

/// The first entry has no record before it: it goes by clearing all, and problem says whether this is the
/// time.
bool mainscreen::_EditUndo_Action()
{
    Integer entrycount = EntryCount(*this);
    if (entrycount > 1) {
        StepBack(*this, entrycount);
        --entrycount;
    }
    if (IsSet(problem())) {
        ClearResults(*this);
    }
    if (entrycount == 1) {
        problem().Text(Str(entrycount));
    }
    return false;
}
