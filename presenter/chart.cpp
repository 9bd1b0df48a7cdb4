#include "frame/conversions.h"
#include "platform/message_box.h"
#include "presenter/presenter.h"

namespace {

constexpr Integer kMostPoints = 105;
constexpr Integer kFirstOfSecondPair = 36; // the first number missed that the second column pair shows
constexpr Integer kFirstOfThirdPair = 71;

/// Moves the rows of a chart list that belong to the next column pair there, by way of two hidden lists: the
/// percentages, and a count of the points left that says how many rows move.
void Split(Listbox& from, Listbox& to, Listbox& percentages, Listbox& pointsLeft, Integer firstRow,
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
    if (points > kMostPoints) {
        MsgBox("This feature of Gradeloom can only present 105 percentages.");
        return;
    }
    for (Integer missed = 0; missed <= points; ++missed) {
        Double const percentage = static_cast<Double>(points - missed) / static_cast<Double>(points) * 100.0;
        ListBox1().AddRow(Str(-missed));
        ListBox1().ColumnCount(2);
        ListBox1().CellAlignment(missed, 1, Listbox::Right);
        ListBox1().Cell(missed, 1, Str(percentage));
    }
    if (points >= kFirstOfSecondPair) {
        Split(ListBox1(), ListBox2(), ListBox3(), ListBox4(), kFirstOfSecondPair, kFirstOfSecondPair, points);
    }
    if (points >= kFirstOfThirdPair) {
        Split(ListBox2(), ListBox5(), ListBox6(), ListBox7(), kFirstOfThirdPair - kFirstOfSecondPair,
              kFirstOfThirdPair, points);
    }
}
