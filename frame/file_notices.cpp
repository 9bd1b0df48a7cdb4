#include "frame/file_notices.h"

#include "platform/message_box.h"

void ReportUnlessSaved(FolderItem const& item, std::string const& fault)
{
    if (!fault.empty()) {
        MsgBox("The file \"" + item.Name() + "\" could not be saved: " + fault + ".");
    }
}

void ReportNotOpened(FolderItem const& item, std::string const& fault)
{
    MsgBox("The file \"" + item.Name() + "\" could not be opened: " + fault + ".");
}

void ReportNotPrinted(std::string const& fileName, std::string const& reason)
{
    std::string const place = fileName.empty() ? "" : " to the file \"" + fileName + "\"";
    MsgBox("The results could not be printed" + place + ": " + reason + ".");
}
