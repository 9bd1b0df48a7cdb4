#include "session/history.h"

#include "frame/clear_results.h"

void AppendEntry(class mainscreen& window, Entry const& entry)
{
    Listbox& list = window.ListBox1();
    Integer const row = entry.number - 1;
    list.AddRow(Str(entry.number));
    list.ColumnCount(3);
    list.CellAlignment(row, 1, Listbox::Right);
    list.CellAlignment(row, 2, Listbox::Left);
    list.ColumnWidths("20,65");
    list.Cell(row, 1, Format(entry.percent, "#.###"));
    list.Cell(row, 2, "%");

    window.ListBox2().AddRow(Str(entry.nummissed));
    window.ListBox3().AddRow(Str(entry.classaverage));
    window.ListBox4().AddRow(entry.letter);
    window.ListBox5().AddRow(Str(entry.runningsum));
}

void RemoveEntry(class mainscreen& window, Integer row)
{
    for (auto const list : kHistory) {
        (window.*list)().RemoveRow(row);
    }
}
