#pragma once

#include "platform/files.h"

#include <string>

// What the user is told of a file that failed. Nothing is told where the fault is empty.

void TellUnlessSaved(FolderItem const& item, std::string const& fault);
void TellUnopened(FolderItem const& item, std::string const& fault);

/// A print job that failed; the file name is empty where it was to go to a printer.
void TellUnprinted(std::string const& fileName, std::string const& reason);
