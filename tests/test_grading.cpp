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
    {"missed",  "37.5",  "37.5",   kTooMany,  "|||||||"},
    {"correct", "30",    "-1",     kTooMany,  "||||-1|||"},
    {"missed",  "30",    kNines,   kTooMany,  "|||||||"},
    {"missed",  kNines,  "0",      "",        "100|A+|0||9223372036854775808|1|100|100"},
    {"missed",  "",      "5",      kNoPoints, "|||5||||"},
    {"missed",  "0.4",   "0",      kNoPoints, "|||0||||"},              // not a whole point to divide by
    {"correct", "0.5e3", "5",      kNoPoints, "||||5|||"},              // 500 as a test, 0.5 to divide by
};

struct {
    char const* scale;           // typed into the default scale
    char const* points;
    char const* missed;
    std::vector<Desk::Box> boxes;
    char const* after;           // the same field, the number of entries, missed
} const kPresses[] = {
    {"amin=98",      "30",  "3",  {{kQuestion, kYes}, {kRepaired}},              "96|1|"},
    {"amin=98",      "",    "3",  {{kQuestion, kYes}, {kRepaired}, {kNoPoints}}, "96||3"},
    {"amin=98",      "30",  "31", {{kQuestion, kYes}, {kRepaired}, {kTooMany}},  "96||"},
    {"amin=98",      "",    "3",  {{kQuestion, kNo}},                            "98||3"},
    {"dminusmin=63", "30",  "3",  {{kQuestion, kYes}, {kRepaired}},              "61|1|"},
    {"amin=97",      "30",  "3",  {{kRepaired}},                                 "97|1|"},
    {"aminusmax=91", "30",  "3",  {{kRepaired}},                                 "92|1|"},
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

QString Undo(Desk const& desk, char const* names = kState)
{
    desk.choose("EditUndo");
    return desk.show(names);
}

} // namespace

/// A press of Grade makes an entry; Undo takes entries back, Reset all of them.
class Grading final : public QObject {
    Q_OBJECT

private slots:
    void aScoreBecomesAnEntryOrIsRefused()
    {
        for (auto const& [field, points, typed, box, results] : kScores) {
            Desk desk(*box != '\0' ? std::vector<Desk::Box>{{box}} : std::vector<Desk::Box>());
            if (QByteArray(field) == "correct") {
                desk.press("checkcorrect");
            }
            desk.type("total", points);
            desk.type(field, typed + '\n');
            QString const shown =
                desk.show("percentage lettergrade lastmissed missed correct numstudents average EditField1");
            QCOMPARE(typed + u": "_s + shown, typed + u": "_s + results);
            QCOMPARE(desk.show("total pointstemp"), QLatin1String(points + '|' + points));
            QCOMPARE(desk.show("ListBox1").isEmpty(), *box != '\0');
        }
    }

    void aScaleOutOfOrderBringsOneQuestion()
    {
        for (auto const& [scale, points, missed, boxes, after] : kPresses) {
            Desk const desk(boxes);
            desk.write(scale);
            desk.gradeAll(points, {missed});
            QByteArray const field = QByteArray(scale).split('=').first();
            QCOMPARE(desk.show(field + " numstudents missed"), QLatin1String(after));
            QVERIFY2(desk.allSeen(), scale);
        }
    }

    void everyLetterHoldsFromItsMinimumToItsMaximum()
    {
        Desk const desk;
        auto const letterFor = [&](double percent) {
            desk.write("percentage=" + QByteArray::number(percent));
            desk.form().percenttest();
            return desk.show("lettergrade");
        };
        int above = 200;
        for (auto const& [letter, minimum] : kMinimums) {
            QCOMPARE(letterFor(above - 0.6), QLatin1String(letter));   // 97.4 rounds to 97
            QCOMPARE(letterFor(minimum - 0.5), QLatin1String(letter)); // 97.5 rounds to 98
            above = minimum;
        }
        desk.write("dminusmin=0");
        QCOMPARE(letterFor(0), "D-"_L1); // nothing is below the lowest minimum now
    }

    void aPercentageInAGapKeepsTheLetterBefore()
    {
        Desk const desk;
        desk.write("amin=92.5 aminusmax=91.5");
        desk.gradeAll("100", {"8"}); // 92 lies in no band
        QCOMPARE(desk.show("lettergrade numstudents ListBox4 " + QByteArray(kTallies)), "|1||||||"_L1);
        desk.type("missed", "15\n");
        desk.type("missed", "8\n");
        QCOMPARE(desk.show("lettergrade ListBox4 " + QByteArray(kTallies)), "B|;B;B||2|||"_L1);
    }

    void theHistoryHoldsOneRowForEachEntry()
    {
        Desk const desk;
        desk.gradeAll("30", {"3", "4", "4"});
        desk.press("checkcorrect");
        desk.type("correct", "33\n");
        desk.type("correct", "20.5\n");
        QCOMPARE(desk.show("ListBox1"), "1,90,%;2,86.666,%;3,86.666,%;4,110,%;5,68.333,%"_L1);
        QCOMPARE(desk.show("ListBox2 ListBox4"), "3;4;4;-3;9.5|A-;B;B;A+;D+"_L1);
        QCOMPARE(desk.show("ListBox3 ListBox5"), "90;88;87;93;88|90;176;262;372;440"_L1); // fractions dropped
        QCOMPARE(desk.show(kTallies), "2|2||1|"_L1);
    }

    void undoStepsBackDownToAnEmptySession()
    {
        Desk desk;
        desk.type("correct", "5");
        QCOMPARE(Undo(desk, "correct problem"), "5|"_L1); // without entries a refusal must come first
        desk.expect(kNoPoints);
        desk.type("missed", "7\n");
        QCOMPARE(Undo(desk, "correct missed problem"), "|7|1"_L1);
        desk.gradeAll("30", {"3", "4", "30"});
        desk.write("missed=9");
        QCOMPARE(desk.show(kState), "3|0|F|30|176|58|"_L1);
        QCOMPARE(Undo(desk), "2|86.666|B|4|176|88|"_L1);
        QCOMPARE(desk.show(kTallies), "1|1|||0"_L1);
        QCOMPARE(desk.show(kHistory), "1,90,%;2,86.666,%|3;4|90;88|A-;B|90;176"_L1);
        QCOMPARE(Undo(desk), "1|90|A-|3|90|90|1"_L1);
        QCOMPARE(desk.show("total pointstemp missed correct"), "30|30|9|0"_L1);
        for (int i = 0; i < 2; ++i) { // the first clears; then there is nothing left
            QCOMPARE(Undo(desk), "||||||1"_L1);
            QCOMPARE(desk.show(kTallies) + desk.show(kHistory), "||||||||"_L1);
            QCOMPARE(desk.show("total pointstemp missed correct"), "30|30|9|"_L1);
        }
    }

    void aRefusalAndANewEntryAreWorkedOffInTurn()
    {
        Desk const desk({{kTooMany}});
        desk.gradeAll("30", {"3", "31"});
        QCOMPARE(Undo(desk), "1|90|A-|3|90|90|1"_L1); // after a refusal this only arms the next one
        QCOMPARE(Undo(desk), "||||||1"_L1);
        desk.gradeAll("30", {"3", "4"});
        QCOMPARE(Undo(desk, "numstudents"), "1"_L1);
        desk.type("missed", "6\n");
        QCOMPARE(desk.show(kState), "2|80|B-|6|170|85|"_L1);
        QCOMPARE(Undo(desk, "numstudents") + Undo(desk, "numstudents"), "1"_L1);
        desk.type("missed", "6\n");
        QCOMPARE(desk.show(kState), "1|80|B-|6|80|80|1"_L1);
        QCOMPARE(Undo(desk), "||||||1"_L1);
        desk.press("checkcorrect"); // the percentage comes back as the history has it
        desk.type("correct", "25\n");
        QCOMPARE(desk.show("percentage"), "83.33"_L1);
        desk.type("correct", "0\n");
        QCOMPARE(Undo(desk, "percentage lastmissed missed correct"), "83.333|5|30|"_L1);
    }

    void bothResetsEmptyTheSession()
    {
        for (bool const byMenu : {false, true}) {
            Desk desk;
            desk.gradeAll("30", {"3", "15"});
            desk.write("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
            for (int i = 0; i < 2; ++i) { // without entries too; no box comes
                byMenu ? desk.choose("FileReset") : desk.press("BevelButton1");
                QCOMPARE(desk.show(QByteArray(kState).replace("problem", kTallies)), "||||||||||"_L1);
                QCOMPARE(desk.show(kHistory), "||||"_L1);
                QCOMPARE(desk.show("total correct pointstemp"), byMenu ? "||30"_L1 : "||"_L1);
                QCOMPARE(desk.show("missed problem fileresetfield foundaproblem amin"), "31|x|5|1|80"_L1);
            }
        }
    }

    void changingThePointsUnderEntriesBringsOneNoticeAndTheTextBack()
    {
        Desk desk;
        desk.gradeAll("37.5", {"3"});
        desk.widget("total")->setFocus();
        for (Qt::Key const key : {Qt::Key_7, Qt::Key_Backspace}) {
            desk.expect("To change the number of points, you must first reset the current data.");
            QTest::keyClick(desk.widget("total"), key);
            QVERIFY(desk.allSeen());
            QCOMPARE(desk.show("total numstudents ListBox1"), "37.5|1|1,91.891,%"_L1);
        }
        desk.widget<QLineEdit>("total")->selectAll(); // the same text in its place is no change
        desk.paste("37.5");
        desk.choose("FileReset");
        desk.type("total", "40");
        QCOMPARE(desk.show("total"), "40"_L1);
    }
};

GRADELOOM_TEST(Grading)
#include "test_grading.moc"
