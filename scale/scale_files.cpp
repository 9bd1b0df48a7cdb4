#include "frame/conversions.h"
#include "frame/file_choice.h"
#include "frame/file_notices.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "scale/bands.h"

#include <array>
#include <optional>

// A scale file holds the texts of the scale fields as they are, one per line, in the order of the scale. One
// such file, the Preferences, is the teacher's standing scale.

namespace {

constexpr char const* kPreferences = "Preferences";

static_assert(bound::kCount == 24, "scale files that teachers already have would no longer fit");

/// Sets the fields once all lines have been read. Returns the fault; after one no field has changed.
std::string ReadScaleFile(class mainscreen& window, FolderItem const& item)
{
    std::string fault;
    std::unique_ptr<TextInputStream> const stream = item.OpenAsTextFile(fault);
    if (stream == nullptr) {
        return fault;
    }
    std::array<std::string, bound::kCount> lines;
    for (std::string& line : lines) {
        line = stream->ReadLine();
    }
    stream->Close();
    if (!stream->Fault().empty()) {
        return stream->Fault();
    }
    for (std::size_t index = 0; index < lines.size(); ++index) {
        ScaleField(window, index).Text(lines[index]);
    }
    return "";
}

void WriteScaleFile(class mainscreen& window, FolderItem const& item)
{
    TextOutputStream stream = item.CreateTextFile();
    for (std::size_t index = 0; index < bound::kCount; ++index) {
        stream.WriteLine(ScaleField(window, index).Text());
    }
    ReportUnlessSaved(item, stream.Close());
}

/// Repairs the scale and rounds its lowest minimum, even if the save is then refused. A save is refused when
/// the scale ends below zero, and once after a repair, so that the teacher looks at the changes first.
bool MaySave(class mainscreen& window)
{
    window.gradingscaletest();
    bool const wasRepaired = IsSet(window.foundaproblem());
    Double const lowest = Round(CDbl(window.dminusmin().Text()));
    window.dminusmin().Text(Str(lowest));
    if (lowest < 0.0) {
        MsgBox("In order to save this grading scale, the minimum for a D- must be greater than or equal to "
               "zero.");
        return false;
    }
    return !wasRepaired;
}

} // namespace

void mainscreen::getprefs()
{
    if (std::optional<FolderItem> const preferences = GetFolderItem(kPreferences, 0)) {
        static_cast<void>(ReadScaleFile(*this, *preferences)); // a first start has no such file
    }
}

void mainscreen::Event_Open()
{
    getprefs();
    ForceTopOfScale(*this);
    gradingscaletest();
}

void mainscreen::PushButton4_Action()
{
    if (MaySave(*this)) {
        if (std::optional<FolderItem> const preferences = GetFolderItem(kPreferences, 0)) {
            WriteScaleFile(*this, *preferences);
        } else {
            ReportUnlessSaved(FolderItem(kPreferences), "there is no folder for the settings of programs");
        }
    }
    foundaproblem().Text("");
}

void mainscreen::PushButton2_Action()
{
    if (MaySave(*this)) {
        if (std::optional<FolderItem> const item = ChooseFileToSave("AlternativeGradingScale")) {
            WriteScaleFile(*this, *item);
        }
    }
    foundaproblem().Text("");
}

bool mainscreen::_FileOpen_Action()
{
    if (EntryCount(*this) != 0) {
        MsgBox("In order to change the current grading scale, you must first reset the data that has already "
               "been entered.");
        return false;
    }
    std::optional<FolderItem> const item = ChooseFileToOpen("Select a Grading Scale");
    if (!item) {
        return false;
    }
    std::string const fault = ReadScaleFile(*this, *item);
    if (fault.empty()) {
        gradingscaletest();
    } else {
        ReportNotOpened(*item, fault);
    }
    return false;
}
