#include "frame/conversions.h"
#include "platform/message_box.h"
#include "presenter/presenter.h"

namespace {

constexpr Integer kMaxPoints = 105;
constexpr Integer kFirstOfSecondPair = 36; // the first number missed in the second pair of columns
constexpr Integer kFirstOfThirdPair = 71;

/// Fills a list with the whole chart. A test worth 0 points has one row, whose percentage is not a number.
void Fill(Listbox& list, Integer points)
{
    for (Integer missed = 0; missed <= points; ++missed) {
        Double const percentage = static_cast<Double>(points - missed) / static_cast<Double>(points) * 100.0;
        list.AddRow(Str(-missed));
        list.ColumnCount(2);
        list.CellAlignment(missed, 1, Listbox::Right);
        list.Cell(missed, 1, Str(percentage));
    }
}

/// Moves the rows from the first number missed on to the next pair of columns. Two hidden lists help: one holds
/// the percentages, the other counts the points left down to 0, so its first row says how many rows follow.
void MoveRest(Listbox& from, Listbox& to, Listbox& percentages, Listbox& pointsLeft, Integer firstRow,
              Integer first, Integer points)
{
    for (Integer missed = first; missed <= points; ++missed) {
        to.ColumnCount(2);
        to.AddRow(from.Cell(firstRow + missed - first, 0));
        pointsLeft.AddRow(Str(static_cast<Double>(points - missed)));
    }
    for (Integer missed = first; missed <= points; ++missed) {
        percentages.AddRow(from.Cell(firstRow + missed - first, 1));
    }
    Integer const last = ToInteger(CDbl(pointsLeft.Cell(0, 0)));
    for (Integer row = 0; row <= last; ++row) {
        to.Cell(row, 1, percentages.Cell(row, 0));
    }
    for (Integer moved = first; moved <= points; ++moved) {
        from.RemoveRow(firstRow);
    }
}

} // namespace

void Window1::PushButton1_Action()
{
    for (Listbox* const list :
         {&ListBox1(), &ListBox2(), &ListBox3(), &ListBox4(), &ListBox5(), &ListBox6(), &ListBox7()}) {
        list->DeleteAllRows();
    }
    Integer const points = ToInteger(Val(EditField1().Text()));
    if (points > kMaxPoints) {
        MsgBox("This feature of Gradeloom can only present 105 percentages.");
        return;
    }
    Fill(ListBox1(), points);
    if (points >= kFirstOfSecondPair) {
        MoveRest(ListBox1(), ListBox2(), ListBox3(), ListBox4(), kFirstOfSecondPair, kFirstOfSecondPair,
                 points);
    }
    if (points >= kFirstOfThirdPair) {
        MoveRest(ListBox2(), ListBox5(), ListBox6(), ListBox7(), kFirstOfThirdPair - kFirstOfSecondPair,
                 kFirstOfThirdPair, points);
    }
}
