#include "tests/harness.h"

#include <QPushButton>

using namespace std::string_literals;

namespace {

QStringList const kNames = QString(kScaleFieldNames).split(u' ');
char const* const kBands[] = {"an A+", "an A", "an A-", "a B+", "a B", "a B-",
                              "a C+",  "a C",  "a C-",  "a D+", "a D", "a D-"};

/// The notice about the boundary above a band, counted from 0.
std::string Notice(qsizetype band)
{
    return "The difference between the minimum for "s + kBands[band - 1] + " and the maximum for " +
           kBands[band] + " must be equal to one.";
}

// clang-format off
constexpr char const* kOneEntry = "total=40; missed=4 Return; ";
Scenario const kEdits[] = {
    {"a key that changes nothing leaves the stored text", "focus bmax; key Left", {{kDeletesData, kNo}},
     "bmax=87 fileresetfield=87 numstudents=1"},
    {"the second change is kept", "focus bmax; key 6; key 6", {{kDeletesData, kNo}, {kDeletesData, kNo}},
     "bmax=876 fileresetfield= numstudents=1"},
    {"each gain of the focus stores anew", "write bmax=86; focus cmax; focus bmax; key 6", {{kDeletesData, kNo}}, "bmax=86"},
    {"a focus from before the first entry has stored nothing", "FileReset; write total=40; focus bmax; key Return; key 5",
     {{kDeletesData, kNo}}, "bmax=5 numstudents=1"},
    {"a stored 1 is restored", "write dmax=1; focus dmax; key 5", {{kDeletesData, kNo}}, "dmax=1"},
    {"a key without room asks too", "write amax=100; focus amax; key End; key 5", {{kDeletesData, kNo}, {kDeletesData, kNo}},
     "amax=100"},
    {"a paste is undone without a question", "focus cmax; paste 12", {}, "cmax=77 numstudents=1 fileresetfield="},
    {"an assistive program's edit asks too", "edit amin 50", {{kDeletesData, kNo}}, "amin=93"},
    {"an assistive program's edit is kept after a Yes", "edit amin 50", {{kDeletesData, kYes}}, "amin=50 numstudents="},
    {"nobody edits the points", "edit total 50", {{kPointsAreFixed}}, "total=40 numstudents=1"},
    {"without entries nothing is asked or stored", "FileReset; focus bmax; keys 6", {}, "bmax=6 fileresetfield="},
    {"Yes throws the entries away and asks once", "write missed=7 foundaproblem=x; focus aplusmin; keys 96",
     {{kDeletesData, kYes}},
     "aplusmin=96 total=40 pointstemp=40 missed=7 problem=1 foundaproblem=x numstudents= average= EditField1= percentage= "
     "lettergrade= lastmissed= correct= agrade= ListBox1= ListBox2= ListBox3= ListBox4= ListBox5= fileresetfield="},
};

struct Boundary {
    char const* name;
    char const *minimum, *maximum; // of two bands in succession
    char const *minimumAfter, *maximumAfter;
} const kBoundaries[] = {
    {"exactly one apart", "50.5", "49.5", "50.5", "49.5"}, 
    {"less than one apart", "50.5", "49.6", "51", "50"}, {"more than one apart", "50.5", "49.4", "51", "50"},
    {"a word", "50.5", "word", "51", "50"},
};
// clang-format on

} // namespace

/// Entered data is protected from edits of the scale, and the boundaries are checked as the focus moves down.
class EditGuard final : public QObject {
    Q_OBJECT

private slots:
    void keysInScaleFieldsAskFirstAndNoRestoresTheText()
    {
        TestSession session;
        session.play("total=40; missed=4 Return");
        for (QString const& name : kNames) {
            QString const before = session.text(name);
            session.play("focus " + name);
            QLineEdit* const field = session.field(name);
            session.expectFields("fileresetfield=" + before);
            session.whileBoxIsUp = [&] { session.expectFields(name + u'=' + before); };
            field->deselect();
            session.expectBox(kDeletesData, kNo);
            QTest::keyClick(field, Qt::Key_Backspace);
            session.expectFields(name + u'=' + before + " fileresetfield= numstudents=1"_L1);
            QVERIFY(field->cursorPosition() == before.size() && !field->hasSelectedText());
        }
    }

    void editsWithEntriesAskFirst_data() { AddRows(kEdits); }
    void editsWithEntriesAskFirst() { CheckScenario(kOneEntry); }

    void wrongBoundariesAreCorrectedToWholeNumbers_data() { AddRows(kBoundaries); }
    void wrongBoundariesAreCorrectedToWholeNumbers()
    {
        QFETCH(Boundary const*, row);
        for (qsizetype band = 1; band < 12; ++band) {
            QString const fields = kNames[2 * band - 1] + "=%1 "_L1 + kNames[2 * band] + "=%2"_L1;
            QString const expected = fields.arg(row->minimumAfter, row->maximumAfter);
            TestSession session;
            session.play("total=40; missed=4 Return");
            session.setFields(fields.arg(row->minimum, row->maximum));
            if (QString(row->minimum) != row->minimumAfter) {
                session.expectBox(Notice(band));
            }
            // The boundary is mended before the notice, the text of the field is stored after it.
            session.whileBoxIsUp = [&] { session.expectFields(expected + " fileresetfield="); };
            QString const& field = kNames[2 * band + 1];
            session.play("focus " + field);
            session.expectFields(expected + " fileresetfield=" + session.text(field));
        }
    }

    void noticesOfTwoFieldsComeInTurn()
    {
        TestSession session({{Notice(1)}, {Notice(2)}});
        session.setFields("aplusmin=95 aminusmax=80");
        session.whileBoxIsUp = [&] { QTest::keyClick(session.widget("total"), Qt::Key_Shift); };
        session.widget("amin")->setFocus();
        session.play("focus aminusmin");
    }

    void pendingNoticesComeBeforeInputMethodsAndButtons()
    {
        TestSession session({{Notice(1)}, {Notice(1)}});
        auto const* const button = session.widget<QPushButton>("PushButton3");
        session.whileBoxIsUp = [&] {
            QVERIFY(!button->isDown());
            session.expectFields("amin=93");
        };
        session.setFields("aplusmin=95");
        session.widget("amin")->setFocus();
        session.play("commit 5");
        session.expectFields("amin=935");

        session.play("focus total; write aplusmin=96 amin=93");
        session.widget("amin")->setFocus();
        QPoint const place = button->mapTo(session.window(), button->rect().center());
        QWindow* const desktop = session.window()->windowHandle(); // as the desktop reports a press
        QTest::mouseClick(desktop, Qt::LeftButton, {}, place);
        QCOMPARE(session.texts(kScaleFieldNames), session.startScale);
    }
};

GRADELOOM_TEST(EditGuard)
#include "test_edit_guard.moc"
