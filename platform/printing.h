#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class PrintJob;

/// A print job, drawn page by page. Coordinates are in 1/72 inch from the top left corner of the paper. The
/// destructor ends the job.
class Graphics {
public:
    explicit Graphics(std::unique_ptr<PrintJob> job);
    ~Graphics();
    Graphics(Graphics const&) = delete;
    Graphics& operator=(Graphics const&) = delete;

    /// Called by the destructor if the job failed, with the reason. The file name is that of the file it was to
    /// go to, empty for a printer.
    std::function<void(std::string const& fileName, std::string const& reason)> Failed;

    /// Draws one line of black text, 12 units high, whose base line starts at (x, y). It can't be wrapped or
    /// condensed: width must be 0 and condense false.
    void DrawString(std::string_view text, double x, double y, double width, bool condense);
    /// Starts the next page.
    void NextPage();

private:
    std::unique_ptr<PrintJob> job_;
};

/// Shows the print dialog for a document of this title and number of pages. Returns null if the user cancels; if no
/// dialog can be shown, returns null and sets fault to the reason.
std::unique_ptr<Graphics> OpenPrinterDialog(std::string_view title, int pages, std::string& fault);
