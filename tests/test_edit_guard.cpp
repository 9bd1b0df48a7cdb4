#include "tests/harness.h"

#include <QPushButton>

using namespace std::string_literals;

namespace {

// clang-format off
struct Boundary {
    char const* name; // the band above, as the notice names it
    char const* below;
    char const* upper;
    char const* lower;
    char const* focus;
} const kBoundaries[] = {
    {"an A+", "an A",  "aplusmin",  "amax",      "amin"},      {"an A",  "an A-", "amin",   "aminusmax", "aminusmin"},
    {"an A-", "a B+",  "aminusmin", "bplusmax",  "bplusmin"},  {"a B+",  "a B",   "bplusmin", "bmax",    "bmin"},
    {"a B",   "a B-",  "bmin",      "bminusmax", "bminusmin"}, {"a B-",  "a C+",  "bminusmin", "cplusmax", "cplusmin"},
    {"a C+",  "a C",   "cplusmin",  "cmax",      "cmin"},      {"a C",   "a C-",  "cmin",   "cminusmax", "cminusmin"},
    {"a C-",  "a D+",  "cminusmin", "dplusmax",  "dplusmin"},  {"a D+",  "a D",   "dplusmin", "dmax",    "dmin"},
    {"a D",   "a D-",  "dmin",      "dminusmax", "dminusmin"},
};
// clang-format on

std::string Notice(std::string const& above, std::string const& below)
{
    return "The difference between the minimum for " + above + " and the maximum for " + below +
           " must be equal to one.";
}

// clang-format off
constexpr char const* kOneEntry = "total=40; missed=4 Return; ";
Scenario const kEdits[] = {
    {"a key that changes nothing leaves the stored text", "focus bmax; key Left", {{kDeletesData, kNo}},
     "bmax=87 fileresetfield=87 numstudents=1"},
    {"the second change stands", "focus bmax; key 6; key 6", {{kDeletesData, kNo}, {kDeletesData, kNo}},
     "bmax=876 fileresetfield= numstudents=1"},
    {"each gain of the focus stores anew", "write bmax=86; focus cmax; focus bmax; key 6", {{kDeletesData, kNo}}, "bmax=86"},
    {"a focus from before the first entry has stored nothing", "FileReset; write total=40; focus bmax; key Return; key 5",
     {{kDeletesData, kNo}}, "bmax=5 numstudents=1"},
    {"a stored text below one is not put back", "write dmax=0.9; focus dmax; key 5", {{kDeletesData, kNo}}, "dmax=5"},
    {"nor is an empty one", "write dmax=; focus dmax; key 5", {{kDeletesData, kNo}}, "dmax=5"},
    {"a stored 1 is put back", "write dmax=1; focus dmax; key 5", {{kDeletesData, kNo}}, "dmax=1"},
    {"a key without room asks too", "write amax=100; focus amax; key End; key 5", {{kDeletesData, kNo}, {kDeletesData, kNo}},
     "amax=100"},
    {"a paste is put back without a question", "focus cmax; paste 12", {}, "cmax=77 numstudents=1 fileresetfield="},
    {"a cut is put back without a question", "focus bmax; EditCut", {}, "bmax=87 numstudents=1"},
    {"an assistive program's edit asks too", "edit amin 50", {{kDeletesData, kNo}}, "amin=93"},
    {"an assistive program's edit stands", "edit amin 50", {{kDeletesData, kYes}}, "amin=50 numstudents="},
    {"nobody edits the points", "edit total 50", {{kPointsAreFixed}}, "total=40 numstudents=1"},
    {"without entries nothing is asked or stored", "FileReset; focus bmax; keys 6", {}, "bmax=6 fileresetfield="},
    {"Yes throws the entries away and asks once", "write missed=7 foundaproblem=x; focus aplusmin; keys 96",
     {{kDeletesData, kYes}},
     "aplusmin=96 total=40 pointstemp=40 missed=7 problem=1 foundaproblem=x numstudents= average= EditField1= percentage= "
     "lettergrade= lastmissed= correct= agrade= ListBox1= ListBox2= ListBox3= ListBox4= ListBox5= fileresetfield="},
};
// clang-format on

} // namespace

/// Entered data is protected from edits of the scale, and the boundaries are checked as the focus moves down.
class EditGuard final : public QObject {
    Q_OBJECT

private slots:
    void aKeyInAnyScaleFieldAsksFirstAndNoPutsTheTextBack()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        for (QString const& name : QString(kScaleFieldNames).split(u' ')) {
            QString const before = session.text(name);
            QLineEdit* const field = session.enterField(name);
            session.expectFields("fileresetfield=" + before);
            session.whileBoxIsUp = [&] { session.expectFields(name + u'=' + before); };
            field->deselect();
            session.expectBox(kDeletesData, kNo);
            QTest::keyClick(field, Qt::Key_Backspace);
            session.expectFields(name + u'=' + before + " fileresetfield= numstudents=1"_L1);
            QVERIFY(field->cursorPosition() == before.size() && !field->hasSelectedText());
        }
    }

    void anEditUnderEntriesIsAskedForAndPutBack_data() { AddRows(kEdits); }
    void anEditUnderEntriesIsAskedForAndPutBack() { CheckScenario(kOneEntry); }

    void aBoundaryThatIsOffComesOutInWholeNumbers_data() { AddRows(kBoundaries); }
    void aBoundaryThatIsOffComesOutInWholeNumbers()
    {
        QFETCH(Boundary const*, row);
        auto const check = [row](char const* upper, char const* lower, char const* upperAfter,
                                 char const* lowerAfter) {
            TestSession session;
            QString const after = u"%1=%2 %3=%4"_s.arg(row->upper, upperAfter, row->lower, lowerAfter);
            session.setFields(u"%1=%2 %3=%4"_s.arg(row->upper, upper, row->lower, lower));
            if (QString(upper) != upperAfter) {
                session.expectBox(Notice(row->name, row->below));
            }
            session.whileBoxIsUp = [&] { session.expectFields(after); }; // mended before it is reported
            session.play("focus "_L1 + row->focus);
            session.expectFields(after);
        };
        check("50.5", "49.5", "50.5", "49.5");
        check("50.5", "49.6", "51", "50");
        check("50.5", "49.4", "51", "50");
        check("50.5", "words", "51", "50");
        check("6e1", "59", "6e1", "59"); // an exponent counts here
    }

    void aTextIsStoredAfterTheNoticeOfItsBoundary()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        session.setFields("aplusmin=95");
        session.expectBox(Notice("an A+", "an A"));
        session.whileBoxIsUp = [&] { session.expectFields("fileresetfield="); };
        session.play("focus amin");
        session.expectFields("aplusmin=95 amax=94 fileresetfield=93");
    }

    void noticesOfTwoFieldsComeOneAfterTheOther()
    {
        TestSession session({{Notice("an A+", "an A")}, {Notice("an A", "an A-")}});
        session.setFields("aplusmin=95 aminusmax=80");
        session.whileBoxIsUp = [&] { QTest::keyClick(session.widget("total"), Qt::Key_Shift); };
        session.widget("amin")->setFocus();
        session.play("focus aminusmin");
    }

    void aNoticeThatIsDueComesBeforeAnInputMethodsText()
    {
        TestSession session({{Notice("an A+", "an A")}});
        session.setFields("aplusmin=95");
        session.whileBoxIsUp = [&] { session.expectFields("amin=93"); };
        session.widget("amin")->setFocus();
        session.play("commit 5");
        session.expectFields("amin=935");
    }

    void aNoticeThatIsDueComesBeforeAPressOfAButton()
    {
        TestSession session({{Notice("an A+", "an A")}});
        session.setFields("aplusmin=95");
        auto const* const button = session.widget<QPushButton>("PushButton3");
        session.whileBoxIsUp = [&] { QVERIFY(!button->isDown()); };
        session.widget("amin")->setFocus();
        QPoint const place = button->mapTo(session.window(), button->rect().center());
        QTest::mouseClick(session.window()->windowHandle(), Qt::LeftButton, {},
                          place); // as the desktop reports it
        session.expectFields("aplusmin=98 amax=97");
    }
};

GRADELOOM_TEST(EditGuard)
#include "test_edit_guard.moc"
