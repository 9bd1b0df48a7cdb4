#include "session/history.h"

#include "frame/mainscreen.h"

#include <array>

namespace {

constexpr std::array kHistory = {&mainscreen::ListBox1, &mainscreen::ListBox2, &mainscreen::ListBox3,
                                 &mainscreen::ListBox4, &mainscreen::ListBox5};

} // namespace

void AppendEntry(class mainscreen& window, Integer entrycount, Double percent, Double nummissed,
                 Integer classaverage)
{
    Listbox& list = window.ListBox1();
    Integer const row = entrycount - 1;
    list.AddRow(Str(entrycount));
    list.ColumnCount(3);
    list.CellAlignment(row, 1, Listbox::Right);
    list.CellAlignment(row, 2, Listbox::Left);
    list.ColumnWidths("20,65");
    list.Cell(row, 1, Format(percent, "#.###"));
    list.Cell(row, 2, "%");

    std::string const letter = window.lettergrade().Text();
    Double const runningsum = CDbl(window.average().Text());
    window.ListBox2().AddRow(Str(nummissed));
    window.ListBox3().AddRow(Str(classaverage));
    window.ListBox4().AddRow(letter);
    window.ListBox5().AddRow(Str(runningsum));
}

void RemoveEntry(class mainscreen& window, Integer row)
{
    for (auto const list : kHistory) {
        (window.*list)().RemoveRow(row);
    }
}

void DeleteHistory(class mainscreen& window)
{
    for (auto const list : kHistory) {
        (window.*list)().DeleteAllRows();
    }
}
