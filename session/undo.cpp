#include "frame/clear_results.h"
#include "frame/conversions.h"
#include "frame/form_state.h"
#include "platform/announcement.h"
#include "session/history.h"
#include "session/letter_grade.h"

namespace {

/// Sets the fields to what they showed after the entry in this row of the history.
void RestoreEntry(class mainscreen& window, Integer row)
{
    window.numstudents().Text(Str(row + 1));
    window.average().Text(Str(CDbl(window.ListBox5().List(row))));
    window.percentage().Text(Str(CDbl(window.ListBox1().Cell(row, 1))));
    window.EditField1().Text(Str(CDbl(window.ListBox3().List(row))));
    window.lastmissed().Text(Str(CDbl(window.ListBox2().List(row))));
    window.lettergrade().Text(window.ListBox4().List(row));
}

/// Removes the last entry; there must be another one before it.
void StepBack(class mainscreen& window, Integer entrycount)
{
    Integer const last = entrycount - 1;
    if (TextField* const tally = TallyOf(window, window.ListBox4().List(last))) {
        tally->Text(Str(Sum(ToInteger(CDbl(tally->Text())), -1)));
    }
    RestoreEntry(window, last - 1);
    RemoveEntry(window, last);
}

std::string NumberOfStudents(Integer count)
{
    if (count == 0) {
        return "no students";
    }
    return Str(count) + (count == 1 ? " student" : " students");
}

} // namespace

/// The first entry has no earlier state to go back to, so undoing it clears everything. The flag
/// "problem" says when.
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
        problem().Text("1");
    }
    Announce(NumberOfStudents(EntryCount(*this)));
    return false;
}
