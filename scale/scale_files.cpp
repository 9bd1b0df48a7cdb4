#include "frame/conversions.h"
#include "frame/file_choice.h"
#include "frame/file_notices.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "scale/scale_fields.h"

#include <array>
#include <optional>

// A scale file holds the texts of the 24 fields, one to a line, in their order and as they stand. One such
// file, the Preferences, is the teacher's standing scale.

namespace {

constexpr char const* kPreferences = "Preferences";

/// Reads the 24 lines of a scale file, and only then sets the fields. Gives the fault; after one no field is
/// set.
std::string ReadScaleFile(class mainscreen& window, FolderItem const& item)
{
    std::string fault;
    std::unique_ptr<TextInputStream> const stream = item.OpenAsTextFile(fault);
    if (stream == nullptr) {
        return fault;
    }
    std::array<std::string, kScaleFieldCount> lines;
    for (std::string& line : lines) {
        line = stream->ReadLine();
    }
    stream->Close();
    if (!stream->Fault().empty()) {
        return stream->Fault();
    }
    for (std::size_t i = 0; i < kScaleFieldCount; ++i) {
        (window.*kScaleFields[i].field)().Text(lines[i]);
    }
    return "";
}

void WriteScaleFile(class mainscreen& window, FolderItem const& item)
{
    TextOutputStream stream = item.CreateTextFile();
    for (ScaleField const& bound : kScaleFields) {
        stream.WriteLine((window.*bound.field)().Text());
    }
    ReportUnlessSaved(item, stream.Close());
}

/// What both save buttons do first: they repair the scale and round its lowest minimum, also when the save is
/// then refused. True if the scale may be saved.
bool PassesGate(class mainscreen& window)
{
    window.gradingscaletest();
    bool const wasRepaired = IsSet(window.foundaproblem());
    Double const lowest = Round(CDbl(window.dminusmin().Text()));
    window.dminusmin().Text(Str(lowest));
    if (0.0 > lowest) {
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
        static_cast<void>(ReadScaleFile(*this, *preferences)); // without the file the scale stays as it is
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
    if (PassesGate(*this)) {
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
    if (PassesGate(*this)) {
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
    if (!fault.empty()) {
        ReportNotOpened(*item, fault);
        return false;
    }
    gradingscaletest();
    return false;
}
