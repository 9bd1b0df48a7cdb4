#include "frame/conversions.h"
#include "frame/file_choice.h"
#include "frame/file_notices.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"

// The export writes the percentages of the entries, as the list shows them, one per line.

bool mainscreen::_FileExport_Action()
{
    if (!(CDbl(numstudents().Text()) > 0.0)) {
        MsgBox("There is currently no data to export to disk.");
        return false;
    }
    std::optional<FolderItem> const item = ChooseFileToSave("ExportedPercents");
    if (!item) {
        return false;
    }
    TextOutputStream stream = item->CreateTextFile();
    Integer const entrycount = EntryCount(*this);
    Listbox const& list = ListBox1();
    for (Integer row = 0; row < entrycount; ++row) {
        stream.WriteLine(list.Cell(row, 1));
    }
    ReportUnlessSaved(*item, stream.Close());
    return false;
}
