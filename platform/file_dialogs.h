#pragma once

#include "platform/files.h"

#include <optional>
#include <string>

struct OpenDialog {
    FolderItem InitialDirectory;
    std::string Title;

    /// Returns the chosen file, or nothing if the user cancels.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};

/// Asks before an existing file is overwritten.
struct SaveAsDialog {
    FolderItem InitialDirectory;
    std::string PromptText; ///< the label of the file name
    std::string SuggestedFileName;
    std::string Title;

    /// Returns the chosen file, or nothing if the user cancels.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};
