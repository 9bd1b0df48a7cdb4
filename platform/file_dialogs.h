#pragma once

#include "platform/files.h"

#include <optional>
#include <string>

/// Asks the user for a file to open.
struct OpenDialog {
    FolderItem InitialDirectory;
    std::string Title;

    /// Returns the chosen file, or nothing if the user cancels.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};

/// Asks the user for the name of a file to save, and before one is overwritten.
struct SaveAsDialog {
    FolderItem InitialDirectory;
    std::string PromptText; ///< the label of the file name
    std::string SuggestedFileName;
    std::string Title;

    /// Returns the chosen place, or nothing if the user cancels.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};
