#include "frame/file_notices.h"

#include "platform/message_box.h"

namespace {

/// The end of a notice. Some systems end their reasons with a full stop of their own.
std::string Because(std::string reason)
{
    while (reason.ends_with('.') || reason.ends_with(' ')) {
        reason.pop_back();
    }
    return ": " + reason + ".";
}

} // namespace

void ReportUnlessSaved(FolderItem const& item, std::string const& fault)
{
    if (!fault.empty()) {
        MsgBox("The file \"" + item.Name() + "\" could not be saved" + Because(fault));
    }
}

void ReportNotOpened(FolderItem const& item, std::string const& fault)
{
    MsgBox("The file \"" + item.Name() + "\" could not be opened" + Because(fault));
}

void ReportNotPrinted(std::string const& fileName, std::string const& reason)
{
    std::string const target = fileName.empty() ? "" : " to the file \"" + fileName + "\"";
    MsgBox("The results could not be printed" + target + Because(reason));
}
