#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class PrintJob;

/// A print job, which the destructor ends. Units are 1/72 inch from the top left corner of the paper.
class Graphics {
public:
    explicit Graphics(std::unique_ptr<PrintJob> job);
    ~Graphics();
    Graphics(Graphics const&) = delete;
    Graphics& operator=(Graphics const&) = delete;

    /// Called at most once, when the job ends. The file name is empty if the job was for a printer.
    std::function<void(std::string const& fileName, std::string const& reason)> Failed;

    /// Draws one line in black, 12 units high, from x on the baseline y. Width must be 0 and condense false: text is
    /// never wrapped or condensed.
    void DrawString(std::string_view text, double x, double y, double width, bool condense);
    /// Starts the next page.
    void NextPage();

private:
    std::unique_ptr<PrintJob> job_;
};

/// Returns null if the user cancels; also, with the fault, if no dialog can be shown.
std::unique_ptr<Graphics> OpenPrinterDialog(std::string_view title, std::string& fault);
