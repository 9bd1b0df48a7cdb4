#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class PrintJob;

/// A print job, drawn page by page. One unit is 1/72 inch, counted from the top left corner of the paper. The
/// release of the object ends the job.
class Graphics {
public:
    explicit Graphics(std::unique_ptr<PrintJob> job);
    ~Graphics();
    Graphics(Graphics const&) = delete;
    Graphics& operator=(Graphics const&) = delete;

    /// The job could not be carried out: the file that it was to go to, if any, and the reason. Comes at most
    /// once, at the release.
    std::function<void(std::string const& fileName, std::string const& reason)> Failed;

    /// Draws one line of text that starts at x on the base line y, in black, 12 units high. Width 0 is no
    /// wrapping, the only width there is.
    void DrawString(std::string_view text, double x, double y, double width, bool condense);
    /// Ends the page; later drawing goes to the next one.
    void NextPage();

private:
    std::unique_ptr<PrintJob> job_;
};

/// Shows the print dialog. Null if the user cancels, and with the fault where no dialog can be shown.
std::unique_ptr<Graphics> OpenPrinterDialog(std::string& fault);
