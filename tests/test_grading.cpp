#include "tests/harness.h"

#include <QScrollBar>

namespace {

constexpr char const* kQuestion =
    "Gradeloom has found problems with the grading scale which must be fixed to continue. Would you like "
    "Gradeloom to fix them for you?";
constexpr char const* kResultFields =
    "percentage lettergrade lastmissed numstudents average EditField1 agrade bgrade cgrade dgrade fgrade "
    "ListBox1 ListBox2 ListBox3 ListBox4 ListBox5";
char const* const kNines = "99999999999999999999999999"; // more than an Integer holds

// clang-format off
struct Score {
    char const* name;
    char const* points;
    char const* field;
    char const* typed;
    char const* notice;   // empty: an entry is made
    char const* afterwards;
} const kScores[] = {
    {"29 % is 28.999999999999996 in doubles", "100",   "missed",  "71",  "",
     "percentage=29 lettergrade=F lastmissed=71 missed= correct=29 average=28 EditField1=28"},
    {"a comma of thousands",                  "1,000", "missed",  "105", "",
     "percentage=89.5 lettergrade=A- lastmissed=105 missed= correct=895 average=89 EditField1=89"},
    {"just below a half",                     "219",   "missed",  "23",  "",
     "percentage=89.49772 lettergrade=B+ lastmissed=23 missed= correct=196 average=89 EditField1=89"},
    {"just below a half, as correct",         "219",   "correct", "196", "",
     "percentage=89.49 lettergrade=B+ lastmissed=23 missed=23 correct= average=89 EditField1=89"},
    {"more correct than points",              "30",    "correct", "33",  "",
     "percentage=110 lettergrade=A+ lastmissed=-3 missed=-3 correct= average=110 EditField1=110"},
    {"half a point of the test is dropped",   "37.5",  "missed",  "37",  "",
     "percentage=0 lettergrade=F lastmissed=37 missed= correct=0 average=0 EditField1=0"},
    {"nothing typed as missed",               "30",    "missed",  "",    "", "percentage=100 correct=30 missed="},
    {"nothing typed as correct",              "30",    "correct", "",    "", "percentage=0 missed=30 correct="},
    {"the highest number of points",          kNines,  "missed",  "0",   "", "percentage=100 correct=9223372036854775808"},
    {"more missed than whole points",         "37.5",  "missed",  "37.5", kTooManyMissed, "missed="},
    {"a negative number correct",             "30",    "correct", "-1",   kTooManyMissed, "missed= correct=-1"},
    {"far too many missed",                   "30",    "missed",  kNines, kTooManyMissed, "missed="},
    {"no points",                             "",      "missed",  "5",    kNeedsPoints,   "missed=5"},
    {"negative points",                       "-5",    "missed",  "0",    kNeedsPoints,   "missed=0"},
    {"no whole point to divide by",           "0.4",   "missed",  "0",    kNeedsPoints,   "missed=0"},
    {"500 as a test, 0.5 to divide by",       "0.5e3", "correct", "5",    kNeedsPoints,   "missed= correct=5"},
};

struct Press {
    char const* name;
    char const* scale;
    char const* points;
    char const* missed;
    std::vector<TestSession::Box> boxes;
    char const* afterwards;
} const kPresses[] = {
    {"Yes",                      "amin=98",       "30",  "3",  {{kQuestion, kYes}, {kScaleRepaired}},
     "amin=96 numstudents=1 missed="},
    {"Yes without points",       "amin=98",       "",    "3",  {{kQuestion, kYes}, {kScaleRepaired}, {kNeedsPoints}},
     "amin=96 numstudents= missed=3"},
    {"Yes with negative points", "amin=98",       "-30", "3",  {{kQuestion, kYes}, {kScaleRepaired}, {kNeedsPoints}},
     "amin=96 numstudents= missed=3"},
    {"Yes with too many missed", "amin=98",       "30",  "31", {{kQuestion, kYes}, {kScaleRepaired}, {kTooManyMissed}},
     "amin=96 numstudents= missed="},
    {"No",                       "amin=98",       "30",  "3",  {{kQuestion, kNo}}, "amin=98 numstudents= missed=3"},
    {"the lowest minimum",       "dminusmin=63",  "30",  "3",  {{kQuestion, kYes}, {kScaleRepaired}},
     "dminusmin=61 numstudents=1"},
    {"equal bounds in order",    "amin=97",       "30",  "3",  {{kScaleRepaired}}, "aminusmax=96 numstudents=1"},
    {"a gap is in order",        "aminusmax=91",  "30",  "3",  {{kScaleRepaired}}, "aminusmax=92 numstudents=1"},
    {"a gap without points",     "aminusmax=91",  "",    "3",  {{kNeedsPoints}},   "aminusmax=91 numstudents="},
    {"the top goes to 100",      "aplusmax=105",  "30",  "3",  {},                 "aplusmax=100 numstudents=1"},
    {"the top as it was typed",  "aplusmax=97",   "30",  "3",  {{kQuestion, kNo}}, "aplusmax=100 numstudents="},
};

struct Band {
    char const* name;
    int minimum, maximum;
    char const* tally;
} const kBands[] = {
    {"A+", 98, 150, "agrade"}, {"A", 93, 97, "agrade"}, {"A-", 90, 92, "agrade"},
    {"B+", 88, 89,  "bgrade"}, {"B", 83, 87, "bgrade"}, {"B-", 80, 82, "bgrade"},
    {"C+", 78, 79,  "cgrade"}, {"C", 73, 77, "cgrade"}, {"C-", 70, 72, "cgrade"},
    {"D+", 68, 69,  "dgrade"}, {"D", 63, 67, "dgrade"}, {"D-", 60, 62, "dgrade"}, {"F", 0, 59, "fgrade"},
};
// clang-format on

} // namespace

/// A press of Grade makes an entry; Undo takes entries back, Reset all of them.
class Grading final : public QObject {
    Q_OBJECT

private slots:
    void aScoreBecomesAnEntryOrIsRefused_data() { AddRows(kScores); }

    void aScoreBecomesAnEntryOrIsRefused()
    {
        QFETCH(Score const*, row);
        bool const isEntry = *row->notice == '\0';
        TestSession session;
        if (!isEntry) {
            session.expectBox(row->notice);
        }
        if (row->field == "correct"_L1) {
            session.click("checkcorrect");
        }
        session.type("total", row->points);
        session.type(row->field, row->typed + u"\n"_s);
        session.expectFields(row->afterwards);
        session.expectFields("problem=1 total="_L1 + row->points + " pointstemp="_L1 + row->points);
        session.expectFields(isEntry ? "numstudents=1" : "numstudents=");
        if (!isEntry) {
            session.expectEmpty(kResultFields);
        }
    }

    void aScaleOutOfOrderBringsOneQuestion_data() { AddRows(kPresses); }

    void aScaleOutOfOrderBringsOneQuestion()
    {
        QFETCH(Press const*, row);
        TestSession session(row->boxes);
        session.setFields(row->scale);
        session.type("total", row->points);
        session.whileBoxIsUp = [&] { session.expectFields("problem=1 pointstemp="_L1 + row->points); };
        session.type("missed", row->missed + u"\n"_s);
        session.expectFields(row->afterwards);
        session.expectFields("problem=1 pointstemp="_L1 + row->points);
    }

    void everyLetterHoldsFromItsMinimumToItsMaximum_data() { AddRows(kBands); }

    void everyLetterHoldsFromItsMinimumToItsMaximum()
    {
        QFETCH(Band const*, row);
        TestSession const session;
        for (double const percent : {row->minimum - 0.5, row->maximum + 0.4}) { // both round into the band
            session.setFields(u"percentage=%1"_s.arg(percent));
            session.form().percenttest();
            session.form().results();
            session.expectFields("lettergrade="_L1 + row->name);
        }
        session.expectFields(row->tally + u"=2"_s);
        session.expectEmpty(QString(kTallyFields).remove(QLatin1String(row->tally)).simplified());
    }

    void noPercentageIsBelowALowestMinimumOfZero()
    {
        TestSession const session;
        session.setFields("dminusmin=0");
        session.enterScores("30", {"30"});
        session.expectFields("lettergrade=D- dgrade=1 fgrade=");
    }

    void aPercentageInAGapKeepsTheLetterBefore()
    {
        TestSession const session;
        session.setFields("amin=92.5 aminusmax=91.5"); // 92 is in no band
        session.enterScores("100", {"8"});
        session.expectFields("lettergrade= numstudents=1 agrade= ListBox4=");
        session.type("missed", "15\n");
        session.type("missed", "8\n");
        session.expectFields("lettergrade=B agrade= bgrade=2 ListBox4=;B;B");
        session.chooseCommand("EditUndo");
        session.chooseCommand("EditUndo");
        session.expectFields("lettergrade= numstudents=1 bgrade=0 ListBox4=");
    }

    void theHistoryHoldsOneRowForEachEntry()
    {
        TestSession const session;
        session.enterScores("30", {"3", "4", "4"});
        session.click("checkcorrect");
        session.type("correct", "33\n");
        session.type("correct", "20.375\n");
        session.expectFields("ListBox1=1,90,%;2,86.666,%;3,86.666,%;4,110,%;5,67.916,% "
                             "ListBox2=3;4;4;-3;9.625 ListBox4=A-;B;B;A+;D+ "
                             "ListBox3=90;88;87;93;87 ListBox5=90;176;262;372;439"); // fractions dropped
        session.expectFields("agrade=2 bgrade=2 cgrade= dgrade=1 fgrade=");
    }

    void theLastEntryIsInSight()
    {
        TestSession const session;
        session.enterScores("30", QStringList(20, "3"));
        QScrollBar const* const bar = session.widget<QTableView>("ListBox1")->verticalScrollBar();
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), bar->maximum());
        session.chooseCommand("EditUndo");
        QCOMPARE(bar->value(), bar->maximum());
    }

    void undoStepsBackToTheRecordOfTheEntryBefore()
    {
        TestSession const session;
        session.enterScores("30", {"3", "4", "30"});
        session.setFields("missed=9");
        session.chooseCommand("EditUndo");
        session.expectFields(
            "numstudents=2 percentage=86.666 lettergrade=B lastmissed=4 average=176 EditField1=88");
        session.expectFields(
            "problem= agrade=1 bgrade=1 cgrade= dgrade= fgrade=0 total=30 missed=9 correct=0");
        session.expectFields(
            "ListBox1=1,90,%;2,86.666,% ListBox2=3;4 ListBox3=90;88 ListBox4=A-;B ListBox5=90;176");
        session.chooseCommand("EditUndo");
        session.expectFields("numstudents=1 percentage=90 lettergrade=A- lastmissed=3 average=90 problem=1");
    }

    void theFirstEntryIsUndoneByClearingTheResults()
    {
        TestSession const session;
        session.enterScores("30", {"3"});
        session.setFields("missed=9");
        session.chooseCommand("EditUndo");
        session.expectEmpty(kResultFields);
        session.expectFields("total=30 pointstemp=30 missed=9 correct= problem=1");
        session.chooseCommand("EditUndo"); // nothing is left
        session.expectFields("total=30 pointstemp=30 missed=9 problem=1 numstudents=");
    }

    void undoWithoutEntriesEmptiesTheNumberCorrectOnlyAfterARefusal()
    {
        TestSession session;
        session.type("correct", "5");
        session.chooseCommand("EditUndo");
        session.expectFields("correct=5 problem=");
        session.expectBox(kNeedsPoints);
        session.type("missed", "7\n");
        session.chooseCommand("EditUndo");
        session.expectFields("correct= missed=7 problem=1");
    }

    void afterARefusalTheFirstEntryTakesTwoUndos()
    {
        TestSession const session({{kTooManyMissed}});
        session.enterScores("30", {"3", "31"});
        session.expectFields("problem=");
        session.chooseCommand("EditUndo");
        session.expectFields("numstudents=1 percentage=90 lettergrade=A- problem=1");
        session.chooseCommand("EditUndo");
        session.expectEmpty(kResultFields);
    }

    void aNewEntryAfterAnUndoIsUndoneInItsTurn()
    {
        TestSession const session;
        session.enterScores("30", {"3", "4"});
        session.chooseCommand("EditUndo");
        session.type("missed", "6\n");
        session.expectFields("numstudents=2 percentage=80 lettergrade=B- average=170 EditField1=85 problem=");
        session.chooseCommand("EditUndo");
        session.chooseCommand("EditUndo");
        session.type("missed", "6\n");
        session.expectFields("numstudents=1 average=80 EditField1=80 problem=1");
    }

    void undoShowsThePercentageAsTheHistoryHasIt()
    {
        TestSession const session;
        session.click("checkcorrect");
        session.type("total", "30");
        session.type("correct", "25\n");
        session.expectFields("percentage=83.33");
        session.type("correct", "0\n");
        session.chooseCommand("EditUndo");
        session.expectFields("percentage=83.333 lastmissed=5 missed=30 correct=");
    }

    void bothResetsEmptyTheSession_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("button") << false;
        QTest::newRow("menu") << true;
    }

    void bothResetsEmptyTheSession()
    {
        QFETCH(bool, byMenu);
        TestSession const session;
        session.enterScores("30", {"3", "15"});
        session.setFields("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
        for (int i = 0; i < 2; ++i) { // the second time without entries
            byMenu ? session.chooseCommand("FileReset") : session.click("BevelButton1");
            session.expectEmpty(kResultFields);
            session.expectFields(byMenu ? "total= correct= pointstemp=30" : "total= correct= pointstemp=");
            session.expectFields("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
        }
    }

    void underEntriesTheNumberOfPointsIsPutBack()
    {
        TestSession session;
        session.enterScores("37.5", {"3"});
        session.enterField("total");
        session.expectBox("To change the number of points, you must first reset the current data.");
        session.whileBoxIsUp = [&] { session.expectFields("total=7"); }; // the notice comes first
        QTest::keyClick(session.widget("total"), Qt::Key_7);
        session.expectFields("total=37.5 numstudents=1 ListBox1=1,91.891,%");
    }

    void withoutEntriesTheNumberOfPointsIsFree()
    {
        TestSession const session;
        session.enterScores("37.5", {"3"});
        session.field("total")->selectAll();
        session.paste("37.5"); // the same text is no change
        session.chooseCommand("FileReset");
        session.type("total", "40");
        session.expectFields("total=40");
    }
};

GRADELOOM_TEST(Grading)
#include "test_grading.moc"
