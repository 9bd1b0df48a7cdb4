#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class PrintJob;

/// A print job, drawn page by page. One unit is 1/72 inch, counted from the top left corner of the paper. The
/// destruction of the object ends the job.
class Graphics {
public:
    explicit Graphics(std::unique_ptr<PrintJob> job);
    ~Graphics();
    Graphics(Graphics const&) = delete;
    Graphics& operator=(Graphics const&) = delete;

    /// The job failed: the file that it was meant for, if any, and the reason. Called at most once, at the end of
    /// the job.
    std::function<void(std::string const& fileName, std::string const& reason)> Failed;

    /// Draws one line of text that starts at x on the base line y, in black, 12 units high. It is never wrapped or
    /// condensed: width must be 0 and condense false.
    void DrawString(std::string_view text, double x, double y, double width, bool condense);
    /// Ends the page; later drawing goes to the next one.
    void NextPage();

private:
    std::unique_ptr<PrintJob> job_;
};

/// Shows the print dialog for a document of this title. Null if the user cancels, and with the fault if no dialog can
/// be shown.
std::unique_ptr<Graphics> OpenPrinterDialog(std::string_view title, std::string& fault);
