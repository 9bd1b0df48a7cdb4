#include "tests/harness.h"

namespace {

constexpr char const* kQuestion = "Gradeloom has found problems with the grading scale which must be fixed";
QByteArray const kNines(400, '9');

// clang-format off
struct {
    char const* field;
    QByteArray points, typed;
    char const* box;
    char const* results; // the percentage, the letter, the last missed, missed, correct, entries, sum, average
} const kScores[] = {
    {"missed",  "100",   "71",     "",        "29|F|71||29|1|28|28"},   // 28.999999999999996 in doubles
    {"missed",  "1,000", "105",    "",        "89.5|A-|105||895|1|89|89"},
    {"missed",  "219",   "23",     "",        "89.49772|B+|23||196|1|89|89"},
    {"correct", "219",   "196",    "",        "89.49|B+|23|23||1|89|89"},
    {"correct", "30",    "33",     "",        "110|A+|-3|-3||1|110|110"},
    {"missed",  "37.5",  "37",     "",        "0|F|37||0|1|0|0"},       // half a point doesn't count
    {"missed",  "37.5",  "37.5",   kTooManyMissed,  "|||||||"},
    {"correct", "30",    "-1",     kTooManyMissed,  "||||-1|||"},
    {"missed",  "30",    kNines,   kTooManyMissed,  "|||||||"},
    {"missed",  kNines,  "0",      "",        "100|A+|0||9223372036854775808|1|100|100"},
    {"missed",  "",      "5",      kNeedsPoints, "|||5||||"},
    {"missed",  "0.4",   "0",      kNeedsPoints, "|||0||||"},              // not a whole point to divide by
    {"correct", "0.5e3", "5",      kNeedsPoints, "||||5|||"},              // 500 as a test, 0.5 to divide by
};

struct {
    char const* scale;           // typed into the default scale
    char const* points;
    char const* missed;
    std::vector<TestSession::Box> boxes;
    char const* after;           // the same field, the number of entries, missed
} const kPresses[] = {
    {"amin=98",      "30",  "3",  {{kQuestion, kYes}, {kScaleRepaired}},              "96|1|"},
    {"amin=98",      "",    "3",  {{kQuestion, kYes}, {kScaleRepaired}, {kNeedsPoints}}, "96||3"},
    {"amin=98",      "30",  "31", {{kQuestion, kYes}, {kScaleRepaired}, {kTooManyMissed}},  "96||"},
    {"amin=98",      "",    "3",  {{kQuestion, kNo}},                            "98||3"},
    {"dminusmin=63", "30",  "3",  {{kQuestion, kYes}, {kScaleRepaired}},              "61|1|"},
    {"amin=97",      "30",  "3",  {{kScaleRepaired}},                                 "97|1|"},
    {"aminusmax=91", "30",  "3",  {{kScaleRepaired}},                                 "92|1|"},
    // the top goes to 100 in silence, but the field below is compared with what it was
    {"aplusmax=105", "30",  "3",  {},                                            "100|1|"},
    {"aplusmax=97",  "30",  "3",  {{kQuestion, kNo}},                            "100||3"},
};

std::pair<char const*, int> const kMinimums[] = {
    {"A+", 98}, {"A", 93}, {"A-", 90}, {"B+", 88}, {"B", 83}, {"B-", 80}, {"C+", 78},
    {"C", 73}, {"C-", 70}, {"D+", 68}, {"D", 63}, {"D-", 60}, {"F", -1},
};
// clang-format on

constexpr char const* kState = "numstudents percentage lettergrade lastmissed average EditField1 problem";

QString Undo(TestSession const& session, char const* names = kState)
{
    session.chooseCommand("EditUndo");
    return session.texts(names);
}

} // namespace

/// A press of Grade makes an entry; Undo takes entries back, Reset all of them.
class Grading final : public QObject {
    Q_OBJECT

private slots:
    void aScoreBecomesAnEntryOrIsRefused()
    {
        for (auto const& [field, points, typed, box, results] : kScores) {
            TestSession session(*box != '\0' ? std::vector<TestSession::Box>{{box}}
                                             : std::vector<TestSession::Box>());
            if (QByteArray(field) == "correct") {
                session.click("checkcorrect");
            }
            session.type("total", points);
            session.type(field, typed + '\n');
            QString const shown = session.texts(
                "percentage lettergrade lastmissed missed correct numstudents average EditField1");
            QCOMPARE(typed + u": "_s + shown, typed + u": "_s + results);
            QCOMPARE(session.texts("total pointstemp"), QLatin1String(points + '|' + points));
            QCOMPARE(session.texts("ListBox1").isEmpty(), *box != '\0');
        }
    }

    void aScaleOutOfOrderBringsOneQuestion()
    {
        for (auto const& [scale, points, missed, boxes, after] : kPresses) {
            TestSession const session(boxes);
            session.setFields(scale);
            session.enterScores(points, {missed});
            QByteArray const field = QByteArray(scale).split('=').first();
            QCOMPARE(session.texts(field + " numstudents missed"), QLatin1String(after));
            QVERIFY2(session.allBoxesSeen(), scale);
        }
    }

    void everyLetterHoldsFromItsMinimumToItsMaximum()
    {
        TestSession const session;
        auto const letterFor = [&](double percent) {
            session.setFields("percentage=" + QByteArray::number(percent));
            session.form().percenttest();
            return session.texts("lettergrade");
        };
        int above = 200;
        for (auto const& [letter, minimum] : kMinimums) {
            QCOMPARE(letterFor(above - 0.6), QLatin1String(letter));   // 97.4 rounds to 97
            QCOMPARE(letterFor(minimum - 0.5), QLatin1String(letter)); // 97.5 rounds to 98
            above = minimum;
        }
        session.setFields("dminusmin=0");
        QCOMPARE(letterFor(0), "D-"_L1); // nothing is below the lowest minimum now
    }

    void aPercentageInAGapKeepsTheLetterBefore()
    {
        TestSession const session;
        session.setFields("amin=92.5 aminusmax=91.5");
        session.enterScores("100", {"8"}); // 92 lies in no band
        QCOMPARE(session.texts("lettergrade numstudents ListBox4 " + QByteArray(kTallyFields)),
                 "|1||||||"_L1);
        session.type("missed", "15\n");
        session.type("missed", "8\n");
        QCOMPARE(session.texts("lettergrade ListBox4 " + QByteArray(kTallyFields)), "B|;B;B||2|||"_L1);
    }

    void theHistoryHoldsOneRowForEachEntry()
    {
        TestSession const session;
        session.enterScores("30", {"3", "4", "4"});
        session.click("checkcorrect");
        session.type("correct", "33\n");
        session.type("correct", "20.5\n");
        QCOMPARE(session.texts("ListBox1"), "1,90,%;2,86.666,%;3,86.666,%;4,110,%;5,68.333,%"_L1);
        QCOMPARE(session.texts("ListBox2 ListBox4"), "3;4;4;-3;9.5|A-;B;B;A+;D+"_L1);
        QCOMPARE(session.texts("ListBox3 ListBox5"),
                 "90;88;87;93;88|90;176;262;372;440"_L1); // fractions dropped
        QCOMPARE(session.texts(kTallyFields), "2|2||1|"_L1);
    }

    void undoStepsBackDownToAnEmptySession()
    {
        TestSession session;
        session.type("correct", "5");
        QCOMPARE(Undo(session, "correct problem"), "5|"_L1); // without entries a refusal must come first
        session.expectBox(kNeedsPoints);
        session.type("missed", "7\n");
        QCOMPARE(Undo(session, "correct missed problem"), "|7|1"_L1);
        session.enterScores("30", {"3", "4", "30"});
        session.setFields("missed=9");
        QCOMPARE(session.texts(kState), "3|0|F|30|176|58|"_L1);
        QCOMPARE(Undo(session), "2|86.666|B|4|176|88|"_L1);
        QCOMPARE(session.texts(kTallyFields), "1|1|||0"_L1);
        QCOMPARE(session.texts(kHistoryLists), "1,90,%;2,86.666,%|3;4|90;88|A-;B|90;176"_L1);
        QCOMPARE(Undo(session), "1|90|A-|3|90|90|1"_L1);
        QCOMPARE(session.texts("total pointstemp missed correct"), "30|30|9|0"_L1);
        for (int i = 0; i < 2; ++i) { // the first clears; then there is nothing left
            QCOMPARE(Undo(session), "||||||1"_L1);
            QCOMPARE(session.texts(kTallyFields) + session.texts(kHistoryLists), "||||||||"_L1);
            QCOMPARE(session.texts("total pointstemp missed correct"), "30|30|9|"_L1);
        }
    }

    void aRefusalAndANewEntryAreWorkedOffInTurn()
    {
        TestSession const session({{kTooManyMissed}});
        session.enterScores("30", {"3", "31"});
        QCOMPARE(Undo(session), "1|90|A-|3|90|90|1"_L1); // after a refusal this only arms the next one
        QCOMPARE(Undo(session), "||||||1"_L1);
        session.enterScores("30", {"3", "4"});
        QCOMPARE(Undo(session, "numstudents"), "1"_L1);
        session.type("missed", "6\n");
        QCOMPARE(session.texts(kState), "2|80|B-|6|170|85|"_L1);
        QCOMPARE(Undo(session, "numstudents") + Undo(session, "numstudents"), "1"_L1);
        session.type("missed", "6\n");
        QCOMPARE(session.texts(kState), "1|80|B-|6|80|80|1"_L1);
        QCOMPARE(Undo(session), "||||||1"_L1);
        session.click("checkcorrect"); // the percentage comes back as the history has it
        session.type("correct", "25\n");
        QCOMPARE(session.texts("percentage"), "83.33"_L1);
        session.type("correct", "0\n");
        QCOMPARE(Undo(session, "percentage lastmissed missed correct"), "83.333|5|30|"_L1);
    }

    void bothResetsEmptyTheSession()
    {
        for (bool const byMenu : {false, true}) {
            TestSession session;
            session.enterScores("30", {"3", "15"});
            session.setFields("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
            for (int i = 0; i < 2; ++i) { // without entries too; no box comes
                byMenu ? session.chooseCommand("FileReset") : session.click("BevelButton1");
                QCOMPARE(session.texts(QByteArray(kState).replace("problem", kTallyFields)), "||||||||||"_L1);
                QCOMPARE(session.texts(kHistoryLists), "||||"_L1);
                QCOMPARE(session.texts("total correct pointstemp"), byMenu ? "||30"_L1 : "||"_L1);
                QCOMPARE(session.texts("missed problem fileresetfield foundaproblem amin"), "31|x|5|1|80"_L1);
            }
        }
    }

    void changingThePointsUnderEntriesBringsOneNoticeAndTheTextBack()
    {
        TestSession session;
        session.enterScores("37.5", {"3"});
        session.widget("total")->setFocus();
        for (Qt::Key const key : {Qt::Key_7, Qt::Key_Backspace}) {
            session.expectBox("To change the number of points, you must first reset the current data.");
            QTest::keyClick(session.widget("total"), key);
            QVERIFY(session.allBoxesSeen());
            QCOMPARE(session.texts("total numstudents ListBox1"), "37.5|1|1,91.891,%"_L1);
        }
        session.widget<QLineEdit>("total")->selectAll(); // the same text in its place is no change
        session.paste("37.5");
        session.chooseCommand("FileReset");
        session.type("total", "40");
        QCOMPARE(session.texts("total"), "40"_L1);
    }
};

GRADELOOM_TEST(Grading)
#include "test_grading.moc"
