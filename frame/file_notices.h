#pragma once

#include "platform/files.h"

#include <string>

// The notices for files and printouts that fail. A fault is the platform's reason in words.

/// Shows nothing if the fault is empty, as it is after a save that succeeded.
void ReportUnlessSaved(FolderItem const& item, std::string const& fault);

void ReportNotOpened(FolderItem const& item, std::string const& fault);

/// The file name is empty if the job was for a printer.
void ReportNotPrinted(std::string const& fileName, std::string const& reason);
