#include "frame/file_choice.h"

#include "platform/file_dialogs.h"

namespace {

FolderItem Documents()
{
    return Volume(0).Child("Documents", true);
}

} // namespace

std::optional<FolderItem> ChooseFileToOpen(std::string_view title)
{
    OpenDialog dialog;
    dialog.InitialDirectory = Documents();
    dialog.Title = title;
    return dialog.ShowModal();
}

std::optional<FolderItem> ChooseFileToSave(std::string_view suggestedName)
{
    SaveAsDialog dialog;
    dialog.InitialDirectory = Documents();
    dialog.PromptText = "Enter a filename";
    dialog.SuggestedFileName = suggestedName;
    dialog.Title = "Save your file";
    return dialog.ShowModal();
}
