#include "tests/harness.h"

#include <QScrollBar>

namespace {

constexpr char const* kQuestion =
    "Gradeloom has found problems with the grading scale which must be fixed to continue. Would you like "
    "Gradeloom to fix them for you?";

// clang-format off
Scenario const kScores[] = {
    {"29 % is 28.999999999999996 in doubles", "total=100; missed=71 Return", {},
     "percentage=29 lettergrade=F lastmissed=71 missed= correct=29 numstudents=1 average=28 EditField1=28"},
    {"a comma of thousands", "total=1,000; missed=105 Return", {},
     "percentage=89.5 lettergrade=A- lastmissed=105 missed= correct=895 numstudents=1 average=89 EditField1=89"},
    {"just below a half", "total=219; missed=23 Return", {},
     "percentage=89.49772 lettergrade=B+ lastmissed=23 missed= correct=196 average=89 EditField1=89"},
    {"just below a half, as correct", "checkcorrect; total=219; correct=196 Return", {},
     "percentage=89.49 lettergrade=B+ lastmissed=23 missed=23 correct= average=89 EditField1=89"},
    {"more correct than points", "checkcorrect; total=30; correct=33 Return", {},
     "percentage=110 lettergrade=A+ lastmissed=-3 missed=-3 correct= average=110 EditField1=110"},
    {"half a point of the test is dropped", "total=37.5; missed=37 Return", {},
     "percentage=0 lettergrade=F lastmissed=37 correct=0 total=37.5 pointstemp=37.5"},
    {"nothing typed as missed", "total=30; missed= Return", {}, "percentage=100 correct=30 missed= lastmissed=0"},
    {"nothing typed as correct", "checkcorrect; total=30; correct= Return", {}, "percentage=0 missed=30 correct="},
    {"more points than an Integer holds", "total=99999999999999999999; missed=0 Return", {},
     "percentage=100 correct=9223372036854775808"},
    {"more missed than whole points", "total=37.5; missed=37.5 Return", {{kTooManyMissed}},
     "missed= correct= lastmissed= percentage= numstudents= ListBox1= pointstemp=37.5 problem=1"},
    {"a negative number correct", "checkcorrect; total=30; correct=-1 Return", {{kTooManyMissed}},
     "missed= correct=-1 lastmissed= percentage= numstudents= ListBox1="},
    {"no points", "missed=5 Return", {{kNeedsPoints}}, "missed=5 numstudents= pointstemp= problem=1"},
    {"negative points", "total=-5; missed=0 Return", {{kNeedsPoints}}, "missed=0 numstudents="},
    {"no whole point to divide by", "total=0.4; missed=0 Return", {{kNeedsPoints}}, "missed=0 numstudents= percentage="},
    {"500 as a test, 0.5 to divide by", "checkcorrect; total=0.5e3; correct=5 Return", {{kNeedsPoints}},
     "missed= correct=5 numstudents="},

    {"Yes has the scale repaired", "write amin=98; total=30; missed=3 Return", {{kQuestion, kYes}, {kScaleRepaired}},
     "amin=96 numstudents=1 missed="},
    {"Yes without points", "write amin=98; missed=3 Return", {{kQuestion, kYes}, {kScaleRepaired}, {kNeedsPoints}},
     "amin=96 numstudents= missed=3"},
    {"Yes with too many missed", "write amin=98; total=30; missed=31 Return",
     {{kQuestion, kYes}, {kScaleRepaired}, {kTooManyMissed}}, "amin=96 numstudents= missed="},
    {"No leaves all but the stamps", "write amin=98; total=30; missed=3 Return", {{kQuestion, kNo}},
     "amin=98 numstudents= missed=3 pointstemp=30 problem=1"},
    {"the lowest minimum is out of order", "write dminusmin=63; total=30; missed=3 Return",
     {{kQuestion, kYes}, {kScaleRepaired}}, "dminusmin=61 numstudents=1"},
    {"equal bounds are in order", "write amin=97; total=30; missed=3 Return", {{kScaleRepaired}},
     "aminusmax=96 numstudents=1"},
    {"a gap is in order", "write aminusmax=91; total=30; missed=3 Return", {{kScaleRepaired}},
     "aminusmax=92 numstudents=1"},
    {"without points a gap stays", "write aminusmax=91; missed=3 Return", {{kNeedsPoints}}, "aminusmax=91"},
    {"the top goes to 100 in silence", "write aplusmax=105; total=30; missed=3 Return", {},
     "aplusmax=100 numstudents=1 foundaproblem="},
    {"the top is compared as it was typed", "write aplusmax=97; total=30; missed=3 Return", {{kQuestion, kNo}},
     "aplusmax=100 numstudents="},
};

Scenario const kSessions[] = {
    {"the history has a row for each entry", "total=30; missed=3 Return; missed=4 Return; missed=4 Return; checkcorrect; "
     "correct=33 Return; correct=20.375 Return", {},
     "ListBox1=1,90,%;2,86.666,%;3,86.666,%;4,110,%;5,67.916,% ListBox2=3;4;4;-3;9.625 ListBox3=90;88;87;93;87 "
     "ListBox4=A-;B;B;A+;D+ ListBox5=90;176;262;372;439 agrade=2 bgrade=2 cgrade= dgrade=1 fgrade="},
    {"nothing is below a lowest minimum of zero", "write dminusmin=0; total=30; missed=30 Return", {},
     "lettergrade=D- dgrade=1 fgrade="},
    {"in a gap the first entry has no letter", "write amin=92.5 aminusmax=91.5; total=100; missed=8 Return", {},
     "lettergrade= numstudents=1 agrade= bgrade= ListBox4="},
    {"in a gap an entry has the letter before it",
     "write amin=92.5 aminusmax=91.5; total=100; missed=8 Return; missed=15 Return; missed=8 Return", {},
     "lettergrade=B agrade= bgrade=2 ListBox4=;B;B"},
    {"undo follows letters through a gap", "write amin=92.5 aminusmax=91.5; total=100; missed=8 Return; "
     "missed=15 Return; missed=8 Return; EditUndo; EditUndo", {}, "lettergrade= numstudents=1 bgrade=0 ListBox4="},
    {"undo steps back to the record of the entry before",
     "total=30; missed=3 Return; missed=4 Return; missed=30 Return; write missed=9; EditUndo", {},
     "numstudents=2 percentage=86.666 lettergrade=B lastmissed=4 average=176 EditField1=88 agrade=1 bgrade=1 cgrade= "
     "fgrade=0 ListBox1=1,90,%;2,86.666,% ListBox2=3;4 ListBox3=90;88 ListBox4=A-;B ListBox5=90;176 problem= total=30 "
     "missed=9 correct=0"},
    {"one entry is left", "total=30; missed=3 Return; missed=4 Return; EditUndo", {},
     "numstudents=1 percentage=90 lettergrade=A- lastmissed=3 average=90 EditField1=90 problem=1"},
    {"the first entry is undone by clearing all", "total=30; missed=3 Return; write missed=9; EditUndo", {},
     "numstudents= percentage= lettergrade= lastmissed= average= EditField1= agrade= ListBox1= ListBox2= ListBox3= "
     "ListBox4= ListBox5= correct= total=30 pointstemp=30 missed=9 problem=1"},
    {"undo at the start does nothing", "correct=5; EditUndo", {}, "correct=5 problem="},
    {"undo after a refusal empties the number correct", "correct=5; missed=7 Return; EditUndo", {{kNeedsPoints}},
     "correct= missed=7 problem=1"},
    {"after a refusal one undo does nothing", "total=30; missed=3 Return; missed=31 Return; EditUndo", {{kTooManyMissed}},
     "numstudents=1 percentage=90 lettergrade=A- problem=1"},
    {"after a refusal the second undo clears", "total=30; missed=3 Return; missed=31 Return; EditUndo; EditUndo",
     {{kTooManyMissed}}, "numstudents= percentage= ListBox1="},
    {"an entry after an undo", "total=30; missed=3 Return; missed=4 Return; EditUndo; missed=6 Return", {},
     "numstudents=2 percentage=80 lettergrade=B- average=170 EditField1=85 problem="},
    {"an entry after all were undone", "total=30; missed=3 Return; EditUndo; EditUndo; missed=6 Return", {},
     "numstudents=1 average=80 EditField1=80 problem=1"},
    {"undo shows the percentage of the history", "checkcorrect; total=30; correct=25 Return; correct=0 Return; EditUndo",
     {}, "percentage=83.333 lastmissed=5 missed=30 correct="},
    {"the points are put back under entries", "total=37.5; missed=3 Return; focus total; key 7", {{kPointsAreFixed}},
     "total=37.5 numstudents=1 ListBox1=1,91.891,%"},
    {"the same points are no change", "total=37.5; missed=3 Return; focus total; paste 37.5", {}, "total=37.5"},
    {"after a reset the points are free", "total=37.5; missed=3 Return; FileReset; total=40", {}, "total=40"},
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
    void aScoreBecomesAnEntryOrIsRefused() { CheckScenario(); }

    void entriesAreListedAndUndone_data() { AddRows(kSessions); }
    void entriesAreListedAndUndone() { CheckScenario(); }

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

    void theStampsAreSetBeforeTheQuestionAndThePointsArePutBackAfterTheNotice()
    {
        TestSession session({
            {.text = kQuestion, .answer = kNo},
            {.text = kPointsAreFixed}
        });
        session.setFields("amin=98 total=30");
        session.whileBoxIsUp = [&] { session.expectFields("problem=1 pointstemp=30"); };
        session.form().PushButton1_Action();
        session.whileBoxIsUp = [&] { session.expectFields("total=7"); };
        session.play("PushButton3; missed=3 Return; focus total; key 7");
    }

    void theListShowsANumberAPercentageAndItsSign()
    {
        TestSession const session;
        session.play("total=30; missed=3 Return");
        auto const* const list = session.widget<QTableView>("ListBox1");
        QVERIFY(list->columnWidth(0) == 20 && list->columnWidth(1) == 65 &&
                list->visualRect(list->model()->index(0, 0)).height() == 16);
        auto const hasAlignment = [&](int column, Qt::AlignmentFlag flag) {
            return (list->model()->index(0, column).data(Qt::TextAlignmentRole).toInt() & flag) != 0;
        };
        QVERIFY(hasAlignment(1, Qt::AlignRight) && hasAlignment(2, Qt::AlignLeft));
    }

    void theLastEntryIsInSight()
    {
        TestSession const session;
        session.play("total=30" + u"; missed=3 Return"_s.repeated(20));
        QScrollBar const* const bar = session.widget<QTableView>("ListBox1")->verticalScrollBar();
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), bar->maximum());
        session.play("EditUndo");
        QCOMPARE(bar->value(), bar->maximum());
    }

    void aHiddenListShowsItsRowsOnceItIsMadeVisible()
    {
        TestSession const session;
        session.play("total=30; missed=3 Return");
        auto* const list = session.widget<QTableView>("ListBox4");
        auto const rowAt = [&](int y) { return list->indexAt({1, y}).data().toString(); };
        list->show();
        QCOMPARE(rowAt(0), u"A-"_s);
        session.play("missed=5 Return");
        QCOMPARE(rowAt(16), u"B"_s);
        list->selectRow(1);
        QVERIFY(list->selectionModel()->isRowSelected(1));
    }

    void bothResetsEmptyTheSession()
    {
        for (QString const& reset : {u"BevelButton1"_s, u"FileReset"_s}) {
            TestSession const session;
            session.play("total=30; missed=3 Return; missed=15 Return");
            session.setFields("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
            for (int i = 0; i < 2; ++i) { // the second time without entries
                session.play(reset);
                session.expectEmpty(
                    "total correct percentage lettergrade lastmissed numstudents average EditField1");
                session.expectEmpty(u"%1 %2"_s.arg(kTallyFields, kHistoryLists));
                session.expectFields(reset == "FileReset"_L1 ? "pointstemp=30" : "pointstemp=");
                session.expectFields("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
            }
        }
    }
};

GRADELOOM_TEST(Grading)
#include "test_grading.moc"
