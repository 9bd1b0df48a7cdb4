#include "frame/conversions.h"
#include "frame/file_notices.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "platform/printing.h"

#include <algorithm>
#include <string>

// The report: a heading, a summary and one line for each entry, in blocks of forty rows, two blocks to a
// page. Coordinates are in units of 1/72 inch from the top left corner of the paper; a line's y is its baseline.

namespace {

constexpr char const* kTitle = "Results from Gradeloom";
constexpr Integer kRowsInBlock = 40;
constexpr Integer kRowsOnPage = 2 * kRowsInBlock;
constexpr Integer kMaxEntries = 160;
constexpr double kLeftBlock = 50.0;
constexpr double kRightBlock = 300.0;
constexpr double kHeadingLine = 50.0;
constexpr double kSummaryLine = 80.0;
constexpr double kAboveRows = 100.0;
constexpr double kRowDistance = 15.0;

static_assert(kMaxEntries == 2 * kRowsOnPage, "the report has two pages");

void Draw(Graphics& page, std::string const& text, double x, double y)
{
    page.DrawString(text, x, y, 0.0, false);
}

std::string StudentLine(class mainscreen& window, Integer row)
{
    Integer const number = ToInteger(CDbl(window.ListBox1().Cell(row, 0)));
    return "Student  " + Str(number) + std::string(8, ' ') + window.ListBox4().List(row) +
           std::string(12, ' ') + window.ListBox1().Cell(row, 1) + " %";
}

/// Draws the lines from the first row on, until the block is full or the entries end.
void DrawBlock(Graphics& page, class mainscreen& window, Integer first, Integer entrycount, double x)
{
    double y = kAboveRows;
    for (Integer row = first; row < std::min(entrycount, first + kRowsInBlock); ++row) {
        y += kRowDistance;
        Draw(page, StudentLine(window, row), x, y);
    }
}

} // namespace

bool mainscreen::_FilePrint_Action()
{
    Integer const entrycount = EntryCount(*this);
    if (entrycount <= 0) {
        MsgBox("There is currently no data to send to the printer.");
        return false;
    }
    std::string fault;
    std::unique_ptr<Graphics> const page = OpenPrinterDialog(kTitle, entrycount > kRowsOnPage ? 2 : 1, fault);
    if (!fault.empty()) {
        ReportNotPrinted("", fault);
    }
    if (page == nullptr) {
        return false;
    }
    page->Failed = ReportNotPrinted;
    if (entrycount > kMaxEntries) {
        MsgBox("Gradeloom will only print the first 160 entries. If you need to print more scores than 160, "
               "please contact the author at " GRADELOOM_CONTACT);
    }
    Draw(*page, kTitle, kLeftBlock, kHeadingLine);
    Draw(*page,
         "Number of Students : " + numstudents().Text() + std::string(7, ' ') +
             "Class Average :  " + EditField1().Text() + " %",
         kLeftBlock, kSummaryLine);
    DrawBlock(*page, *this, 0, entrycount, kLeftBlock);
    DrawBlock(*page, *this, kRowsInBlock, entrycount, kRightBlock);
    if (entrycount > kRowsOnPage) {
        page->NextPage();
        DrawBlock(*page, *this, kRowsOnPage, entrycount, kLeftBlock);
        DrawBlock(*page, *this, kRowsOnPage + kRowsInBlock, entrycount, kRightBlock);
    }
    return false;
}
