#pragma once

#include "platform/files.h"

#include <optional>
#include <string_view>

// The file dialogs, which start in the user's documents. Both return nothing if the user cancels.

[[nodiscard]] std::optional<FolderItem> ChooseFileToOpen(std::string_view title);
[[nodiscard]] std::optional<FolderItem> ChooseFileToSave(std::string_view suggestedName);
