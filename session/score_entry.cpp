#include "frame/conversions.h"
#include "frame/form_state.h"
#include "frame/mainscreen.h"
#include "platform/announcement.h"
#include "platform/message_box.h"
#include "scale/bands.h"
#include "session/history.h"

#include <algorithm>
#include <functional>
#include <optional>

// A press of Grade turns the typed score into one entry.

namespace {

struct Score {
    Double nummissed = 0.0;
    Double percent = 0.0;
};

/// Whether no bound is above the one before it. Gaps between bands are left to the repair.
bool IsInOrder(ScaleNumbers const& numbers)
{
    return std::ranges::is_sorted(numbers, std::ranges::greater());
}

bool AskToRepair()
{
    return MsgBox("Gradeloom has found problems with the grading scale which must be fixed to continue. "
                  "Would you like Gradeloom to fix them for you?",
                  kYesNoQuestion, "") == kYes;
}

void ReportNoPoints()
{
    MsgBox("You must enter a positive value for the Number of Points.");
}

/// Returns whether the number of points is positive; if not, shows a notice.
bool CheckPoints(class mainscreen& window)
{
    bool const isPositive = CDbl(window.total().Text()) > 0.0;
    if (!isPositive) {
        ReportNoPoints();
    }
    return isPositive;
}

/// Repairs the scale and checks the points; returns whether the press goes on. A repair that the user
/// agreed to runs even without points; without a question the points are checked first.
bool PrepareScale(class mainscreen& window)
{
    bool const wasInOrder = IsInOrder(ReadScale(window));
    ForceTopOfScale(window);
    bool const mayRepair = wasInOrder ? CheckPoints(window) : AskToRepair();
    if (!mayRepair) {
        return false;
    }
    window.gradingscaletest();
    return wasInOrder || CheckPoints(window);
}

/// Returns whether no more points are missed than there are; if not, shows a notice and empties the field.
bool CheckMissed(class mainscreen& window, Integer pointstotal)
{
    if (Val(window.missed().Text()) <= static_cast<Double>(pointstotal)) {
        return true;
    }
    MsgBox("The number missed should not exceed the total number of points.");
    window.missed().Text("");
    return false;
}

Double Percent(Double numcorrect, Integer pointstotal)
{
    return numcorrect / static_cast<Double>(pointstotal) * 100.0;
}

/// Reads the number correct and shows the score; nothing if it is refused.
std::optional<Score> ReadCorrect(class mainscreen& window, Integer pointstotal)
{
    Double const numcorrect = Val(window.correct().Text());
    Double const nummissed = static_cast<Double>(pointstotal) - numcorrect;
    window.missed().Text(Str(nummissed));
    if (!CheckMissed(window, pointstotal)) {
        return std::nullopt;
    }
    Double const percent = Percent(numcorrect, pointstotal);
    window.lastmissed().Text(Str(nummissed));
    window.percentage().Text(Format(percent, "#.##"));
    window.correct().Text("");
    return Score{nummissed, percent};
}

/// Reads the number missed and shows the score; nothing if it is refused.
std::optional<Score> ReadMissed(class mainscreen& window, Integer pointstotal)
{
    if (!CheckMissed(window, pointstotal)) {
        return std::nullopt;
    }
    Double const nummissed = Val(window.missed().Text());
    Double const numcorrect = static_cast<Double>(pointstotal) - nummissed;
    Double const percent = Percent(numcorrect, pointstotal);
    window.lastmissed().Text(Str(nummissed));
    window.correct().Text(Str(numcorrect));
    window.percentage().Text(Str(percent));
    return Score{nummissed, percent};
}

/// Counts the score and appends it to the history.
void RecordScore(class mainscreen& window, Score const& score, bool isByCorrect)
{
    Integer const entrycount = Sum(ToInteger(Val(window.numstudents().Text())), 1);
    Double const earliersum = static_cast<Double>(ToInteger(Val(window.average().Text())));
    Integer const runningsum = ToInteger(earliersum + score.percent);
    Integer const classaverage = ToInteger(static_cast<Double>(runningsum) / static_cast<Double>(entrycount));
    window.numstudents().Text(Str(entrycount));
    window.average().Text(Str(runningsum));
    window.EditField1().Text(Str(classaverage));
    if (!isByCorrect) {
        window.missed().Text("");
    }
    Entry const entry = {
        .number = entrycount,
        .percent = score.percent,
        .nummissed = score.nummissed,
        .letter = window.lettergrade().Text(),
        .classaverage = classaverage,
        .runningsum = CDbl(window.average().Text()),
    };
    AppendEntry(window, entry);
}

/// Makes one entry of what was typed; false if it is refused.
bool MakeEntry(class mainscreen& window)
{
    Integer const pointstotal = ToInteger(Val(window.total().Text()));
    if (pointstotal == 0) { // a number of points above 0 and below 1
        ReportNoPoints();
        return false;
    }
    bool const isByCorrect = window.checkcorrect().Value();
    std::optional<Score> const score =
        isByCorrect ? ReadCorrect(window, pointstotal) : ReadMissed(window, pointstotal);
    if (score) {
        window.percenttest();
        window.results();
        RecordScore(window, *score, isByCorrect);
        Announce(window.percentage().Text() + " percent, " + window.lettergrade().Text());
    }
    return score.has_value();
}

} // namespace

void mainscreen::PushButton1_Action()
{
    // Undo and a change of the points rely on the last press, even on a refused one.
    pointstemp().Text(total().Text());
    problem().Text(EntryCount(*this) < 1 ? "1" : "");

    bool const isEntered = PrepareScale(*this) && MakeEntry(*this);
    if (!isEntered) {
        EditUndo().IgnoreNextShortcut(); // this press left nothing to undo
    }
}
