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
    return OpenDialog{.InitialDirectory = Documents(), .Title = std::string(title)}.ShowModal();
}

std::optional<FolderItem> ChooseFileToSave(std::string_view suggestedName)
{
    SaveAsDialog const dialog = {
        .InitialDirectory = Documents(),
        .PromptText = "Enter a filename",
        .SuggestedFileName = std::string(suggestedName),
        .Title = "Save your file",
    };
    return dialog.ShowModal();
}
