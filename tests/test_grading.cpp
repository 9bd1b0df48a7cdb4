#include "tests/harness.h"

#include <QScrollBar>

namespace {

// clang-format off
Scenario const kScores[] = {
    {"29 % is 28.999999999999996 in doubles", "total=100; missed=71 Return", {},
     "percentage=29 lettergrade=F lastmissed=71 missed= correct=29 numstudents=1 average=28 EditField1=28"},
    {"just below a half", "total=219; missed=23 Return", {},
     "percentage=89.49772 lettergrade=B+ lastmissed=23 missed= correct=196 average=89 EditField1=89"},
    {"just below a half, as correct", "checkcorrect; total=219; correct=196 Return", {},
     "percentage=89.49 lettergrade=B+ lastmissed=23 missed=23 correct= average=89 EditField1=89"},
    {"more correct than points", "checkcorrect; total=30; correct=33 Return", {},
     "percentage=110 lettergrade=A+ lastmissed=-3 missed=-3 correct= average=110 EditField1=110"},
    {"half a point of the test is dropped", "total=37.5; missed=37 Return", {},
     "percentage=0 lettergrade=F lastmissed=37 correct=0 total=37.5 pointstemp=37.5"},
    {"more missed than whole points", "total=37.5; missed=37.5 Return", {{kTooManyMissed}},
     "missed= correct= lastmissed= percentage= numstudents= ListBox1= pointstemp=37.5 problem=1"},
    {"a negative number correct", "checkcorrect; total=30; correct=-1 Return", {{kTooManyMissed}},
     "missed= correct=-1 lastmissed= percentage= numstudents= ListBox1="},
    {"negative points", "total=-5; missed=0 Return", {{kNeedsPoints}}, "missed=0 numstudents="},
    {"no whole point to divide by", "total=0.4; missed=0 Return", {{kNeedsPoints}}, "missed=0 numstudents= percentage="},

    {"Yes has the scale repaired", "write amin=98; total=30; missed=3 Return", {{kScaleUnsound, kYes}, {kScaleRepaired}},
     "amin=96 numstudents=1 missed="},
    {"Yes without points", "write amin=98; missed=3 Return", {{kScaleUnsound, kYes}, {kScaleRepaired}, {kNeedsPoints}},
     "amin=96 numstudents= missed=3"},
    {"equal bounds are in order", "write amin=97; total=30; missed=3 Return", {{kScaleRepaired}},
     "aminusmax=96 numstudents=1"},
    {"without points a gap stays", "write aminusmax=91; missed=3 Return", {{kNeedsPoints}}, "aminusmax=91"},
    {"the top is compared as it was typed", "write aplusmax=97; total=30; missed=3 Return", {{kScaleUnsound, kNo}},
     "aplusmax=100 numstudents="},
};

Scenario const kSessions[] = {
    {"the history has a row for each entry", "total=30; missed=3 Return; missed=4 Return; missed=4 Return; checkcorrect; "
     "correct=33 Return; correct=20.375 Return", {},
     "ListBox1=1,90,%;2,86.666,%;3,86.666,%;4,110,%;5,67.916,% ListBox2=3;4;4;-3;9.625 ListBox3=90;88;87;93;87 "
     "ListBox4=A-;B;B;A+;D+ ListBox5=90;176;262;372;439 agrade=2 bgrade=2 cgrade= dgrade=1 fgrade="},
    {"nothing is below a lowest minimum of zero", "write dminusmin=0; total=30; missed=30 Return", {},
     "lettergrade=D- dgrade=1 fgrade="},
    {"in a gap an entry has the letter before it",
     "write amin=92.5 aminusmax=91.5; total=100; missed=8 Return; missed=15 Return; missed=8 Return", {},
     "lettergrade=B agrade= bgrade=2 ListBox4=;B;B"},
    {"undo follows letters through a gap", "write amin=92.5 aminusmax=91.5; total=100; missed=8 Return; "
     "missed=15 Return; missed=8 Return; EditUndo; EditUndo", {},
     "lettergrade= numstudents=1 percentage=92 lastmissed=8 average=92 EditField1=92 bgrade=0 ListBox4= problem=1"},
    {"undo steps back to the record of the entry before",
     "total=30; missed=3 Return; missed=4 Return; missed=30 Return; write missed=9; EditUndo", {},
     "numstudents=2 percentage=86.666 lettergrade=B lastmissed=4 average=176 EditField1=88 agrade=1 bgrade=1 cgrade= "
     "fgrade=0 ListBox1=1,90,%;2,86.666,% ListBox2=3;4 ListBox3=90;88 ListBox4=A-;B ListBox5=90;176 problem= total=30 "
     "missed=9 correct=0"},
    {"undo after a refusal empties the number correct", "correct=5; missed=7 Return; EditUndo", {{kNeedsPoints}},
     "correct= missed=7 problem=1"},
    {"after a refusal one undo does nothing", "total=30; missed=3 Return; missed=31 Return; EditUndo", {{kTooManyMissed}},
     "numstudents=1 percentage=90 lettergrade=A- problem=1"},
    {"after a refusal the second undo clears", "total=30; missed=3 Return; missed=31 Return; EditUndo; EditUndo",
     {{kTooManyMissed}}, "numstudents= percentage= ListBox1="},
};

struct Order {
    char const* name;
    char const* before;
    char const* acts;
    char const* writes; // the controls whose content changes, in their order; no other may
    bool areEmptied = false;
    std::vector<TestSession::Box> boxes = {};
} const kOrders[] = {
    {"a number missed", "total=30; write missed=3", "PushButton1", "pointstemp problem lastmissed correct percentage "
     "lettergrade agrade numstudents average EditField1 missed ListBox1 ListBox2 ListBox3 ListBox4 ListBox5"},
    {"a number correct", "total=30; checkcorrect; write correct=30", "PushButton1", "pointstemp problem missed lastmissed "
     "percentage correct lettergrade agrade numstudents average EditField1 ListBox1 ListBox2 ListBox3 ListBox4 ListBox5"},
    {"a refused press", "write amin=98 total=37.5", "PushButton1", "pointstemp problem box", false, {{kScaleUnsound, kNo}}},
    {"points that may not change", "total=30; missed=3 Return; write total=", "focus total; key 7", "total box total total",
     false, {{kPointsAreFixed}}},
    {"Undo", "total=30; missed=3 Return; missed=15 Return", "EditUndo", "fgrade numstudents average percentage "
     "EditField1 lastmissed lettergrade ListBox1 ListBox2 ListBox3 ListBox4 ListBox5 problem"},
    {"the last Undo", "total=30; missed=3 Return; write missed=9", "EditUndo", "correct lastmissed percentage lettergrade "
     "average numstudents agrade EditField1 ListBox1 ListBox2 ListBox3 ListBox4 ListBox5", true},
    {"Reset", "total=30; missed=3 Return; write missed=31 problem=x fileresetfield=5 foundaproblem=1 bgrade=1 cgrade=1 dgrade=1 "
     "fgrade=1", "FileReset", "total correct lastmissed percentage lettergrade average numstudents agrade bgrade cgrade dgrade "
     "fgrade EditField1 ListBox1 ListBox2 ListBox3 ListBox4 ListBox5", true},
    {"the button Reset", "total=30; missed=3 Return; write missed=31 problem=x fileresetfield=5 foundaproblem=1 bgrade=1 "
     "cgrade=1 dgrade=1 fgrade=1", "BevelButton1", "numstudents pointstemp total correct lastmissed percentage lettergrade "
     "average agrade bgrade cgrade dgrade fgrade EditField1 ListBox1 ListBox2 ListBox3 ListBox4 ListBox5", true},
};

// clang-format on

} // namespace

/// A press of Grade makes an entry; Undo takes entries back, Reset all of them.
class Grading final : public QObject {
    Q_OBJECT

private slots:
    void scoresAreEnteredOrRefused_data() { AddRows(kScores); }
    void scoresAreEnteredOrRefused() { CheckScenario(); }

    void entriesAreListedAndUndone_data() { AddRows(kSessions); }
    void entriesAreListedAndUndone() { CheckScenario(); }

    void controlsAreWrittenInOrder_data() { AddRows(kOrders); }
    void controlsAreWrittenInOrder()
    {
        QFETCH(Order const*, row);
        TestSession session(row->boxes);
        session.play(row->before);
        QString writes;
        session.whileBoxIsUp = [&writes] { writes += "box "_L1; };
        for (QLineEdit* const field : session.window()->findChildren<QLineEdit*>()) {
            connect(field, &QLineEdit::textChanged, this,
                    [&writes, field] { writes += field->objectName() + u' '; });
        }
        for (QString const& name : QString(kHistoryLists).split(u' ')) {
            auto const* const rows = session.widget(name)->findChild<QAbstractItemModel*>();
            auto const note = [&writes, name] { writes += name + u' '; };
            connect(rows, &QAbstractItemModel::rowsInserted, this, note);
            connect(rows, &QAbstractItemModel::rowsRemoved, this, note);
            connect(rows, &QAbstractItemModel::modelReset, this, note);
        }
        session.play(row->acts);
        QCOMPARE(writes.trimmed(), QLatin1String(row->writes));
        if (row->areEmptied) {
            session.expectFields(QString(row->writes).replace(u" "_s, u"= "_s) + u'=');
        }
    }

    void letterGradesCoverTheirWholeRange()
    {
        TestSession const session;
        QStringList const bounds = QString(kTestScale).split(u' ') + QStringList{u"59"_s, u"0"_s};
        QStringList const letters = u"A+ A A- B+ B B- C+ C C- D+ D D- F"_s.split(u' ');
        for (qsizetype band = 0; band < letters.size(); ++band) {
            for (double const percent :
                 {bounds[2 * band].toInt() + 0.4, bounds[2 * band + 1].toInt() - 0.5}) { // both round into it
                session.setFields(u"percentage=%1"_s.arg(percent));
                session.form().percenttest();
                session.form().results();
                session.expectFields("lettergrade=" + letters[band]);
            }
            session.expectFields(u"%1grade=%2"_s.arg(letters[band][0].toLower()).arg(2 * (band % 3 + 1)));
        }
    }

    void listScrollsToItsLastRow()
    {
        TestSession const session;
        auto const* const list = session.widget<QTableView>("ListBox1");
        QCOMPARE(list->model()->columnCount(), 2);
        session.play("total=30" + u"; missed=3 Return"_s.repeated(20));
        QScrollBar const* const bar = list->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() == 20 * 16 - list->viewport()->height() && bar->value() == bar->maximum());
        QVERIFY(bar->singleStep() == 16 && bar->pageStep() == list->viewport()->height());
        session.play("EditUndo");
        QTRY_VERIFY(bar->maximum() == 19 * 16 - list->viewport()->height() && bar->value() == bar->maximum());
    }
};

GRADELOOM_TEST(Grading)
#include "test_grading.moc"
