#include "frame/conversions.h"
#include "frame/file_notices.h"
#include "frame/mainscreen.h"
#include "platform/file_dialogs.h"
#include "platform/message_box.h"

// The export writes the percentages of the entries, as the list shows them, one to a line.

bool mainscreen::_FileExport_Action()
{
    SaveAsDialog dialog;
    if (!(CDbl(numstudents().Text()) > 0.0)) {
        MsgBox("There is currently no data to export to disk.");
        return false;
    }
    dialog.InitialDirectory = Volume(0).Child("Documents", true);
    dialog.PromptText = "Enter a filename";
    dialog.SuggestedFileName = "ExportedPercents";
    dialog.Title = "Save your file";
    std::optional<FolderItem> const item = dialog.ShowModal();
    if (!item) {
        return false;
    }
    TextOutputStream stream = item->CreateTextFile();
    Integer const entrycount = ToInteger(CDbl(numstudents().Text()));
    for (Integer row = 0; row < entrycount; ++row) {
        stream.WriteLine(ListBox1().Cell(row, 1));
    }
    TellUnlessSaved(*item, stream.Close());
    return false;
}
