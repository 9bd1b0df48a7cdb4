#pragma once

#include "platform/files.h"

#include <string>

// The notices for files and printouts that fail. A fault is the platform's reason in words.

/// An empty fault means success and shows nothing.
void ReportUnlessSaved(FolderItem const& item, std::string const& fault);

void ReportNotOpened(FolderItem const& item, std::string const& fault);

/// The file name is empty if the job was for a printer.
void ReportNotPrinted(std::string const& fileName, std::string const& reason);
