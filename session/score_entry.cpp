#include "frame/conversions.h"
#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "scale/bands.h"
#include "session/history.h"

// A press of Grade turns the typed score into one entry.

namespace {

/// What the question about the scale has decided; it lives for one press.
enum class GradeState : Integer { Undecided = 0, NoPoints = 1, Graded = 2, Declined = 3 };

/// A score as one of the two input modes has read it.
struct Score {
    Double numcorrect = 0.0;
    Double nummissed = 0.0;
};

void TellPositivePoints()
{
    MsgBox("You must enter a positive value for the Number of Points.");
}

bool HasPositivePoints(class mainscreen& window)
{
    return CDbl(window.total().Text()) > 0.0;
}

/// Refuses a number missed above the points, whichever mode it came from.
bool IsTooManyMissed(class mainscreen& window, Integer pointstotal)
{
    if (Val(window.missed().Text()) > static_cast<Double>(pointstotal)) {
        MsgBox("The number missed should not exceed the total number of points.");
        window.missed().Text("");
        return true;
    }
    return false;
}

Double Percent(Score const& score, Integer pointstotal)
{
    return score.numcorrect / static_cast<Double>(pointstotal) * 100.0;
}

/// Reads the number correct and shows the score. False if the score is refused.
bool ReadCorrect(class mainscreen& window, Integer pointstotal, Score& score)
{
    score.numcorrect = Val(window.correct().Text());
    score.nummissed = static_cast<Double>(pointstotal) - score.numcorrect;
    window.missed().Text(Str(score.nummissed));
    if (IsTooManyMissed(window, pointstotal)) {
        return false;
    }
    window.lastmissed().Text(Str(score.nummissed));
    window.percentage().Text(Format(Percent(score, pointstotal), "#.##"));
    window.correct().Text("");
    return true;
}

/// Reads the number missed and shows the score. False if the score is refused.
bool ReadMissed(class mainscreen& window, Integer pointstotal, Score& score)
{
    if (IsTooManyMissed(window, pointstotal)) {
        return false;
    }
    score.nummissed = Val(window.missed().Text());
    score.numcorrect = static_cast<Double>(pointstotal) - score.nummissed;
    window.lastmissed().Text(Str(score.nummissed));
    window.correct().Text(Str(score.numcorrect));
    window.percentage().Text(Str(Percent(score, pointstotal)));
    return true;
}

/// Makes the entry, or refuses the score.
void MakeEntry(class mainscreen& window)
{
    Integer runningsum = ToInteger(Val(window.average().Text()));
    Integer entrycount = ToInteger(Val(window.numstudents().Text()));
    Integer const pointstotal = ToInteger(Val(window.total().Text()));
    if (pointstotal == 0) { // less than one whole point can't be divided by
        TellPositivePoints();
        return;
    }
    bool const byCorrect = window.checkcorrect().Value();
    Score score;
    if (!(byCorrect ? ReadCorrect(window, pointstotal, score) : ReadMissed(window, pointstotal, score))) {
        return;
    }
    Double const percent = Percent(score, pointstotal);

    window.percenttest();
    window.results();
    entrycount = Sum(entrycount, 1);
    window.numstudents().Text(Str(entrycount));
    runningsum = ToInteger(static_cast<Double>(runningsum) + percent);
    Integer const classaverage = ToInteger(static_cast<Double>(runningsum) / static_cast<Double>(entrycount));
    window.average().Text(Str(runningsum));
    window.EditField1().Text(Str(classaverage));
    if (!byCorrect) {
        window.missed().Text("");
    }
    AppendEntry(window, entrycount, percent, score.nummissed, classaverage);
}

/// A bound above the one before it, as the numbers were read, is a violation; a gap is none.
bool IsInOrder(ScaleNumbers const& numbers)
{
    for (std::size_t i = 1; i < numbers.size(); ++i) {
        if (numbers[i] > numbers[i - 1]) {
            return false;
        }
    }
    return true;
}

/// Offers to fix a scale that is out of order. After a Yes the scale is repaired before the points are
/// tested.
GradeState CheckScale(class mainscreen& window)
{
    ScaleNumbers const numbers = ReadScale(window);
    ForceTopOfScale(window);
    if (IsInOrder(numbers)) {
        return GradeState::Undecided;
    }
    int const answer =
        MsgBox("Gradeloom has found problems with the grading scale which must be fixed to continue. "
               "Would you like Gradeloom to fix them for you?",
               kYesNoQuestion, "");
    if (answer != kYes) {
        return GradeState::Declined;
    }
    window.gradingscaletest();
    if (!HasPositivePoints(window)) {
        TellPositivePoints();
        return GradeState::NoPoints;
    }
    MakeEntry(window);
    return GradeState::Graded;
}

} // namespace

void mainscreen::PushButton1_Action()
{
    // These two stamps stay, also when the press is refused.
    pointstemp().Text(total().Text());
    bool const isFirst = ToInteger(CDbl(numstudents().Text())) < 1;
    problem().Text(isFirst ? "1" : "");

    if (CheckScale(*this) != GradeState::Undecided) {
        return;
    }
    if (!HasPositivePoints(*this)) {
        TellPositivePoints();
        return;
    }
    gradingscaletest();
    MakeEntry(*this);
}
