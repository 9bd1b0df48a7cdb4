#include "tests/harness.h"

#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

constexpr char const* kQuestion = "Gradeloom has found problems with the grading scale which must be fixed";
constexpr char const* kRepaired = "An attempt was made to fix the grading scale.";
constexpr char const* kNoPoints = "You must enter a positive value for the Number of Points.";
constexpr char const* kTooMany = "The number missed should not exceed the total number of points.";
constexpr char const* kResults =
    "percentage lettergrade lastmissed missed correct numstudents average EditField1";
constexpr char const* kTallies = "agrade bgrade cgrade dgrade fgrade";

// clang-format off
struct {
    char const* field;
    QByteArray points, typed;
    char const* box;
    char const* results;
} const kScores[] = {
    {"missed",  "100",   "7",      "",        "93|A|7||93|1|93|93"},
    {"missed",  "100",   "",       "",        "100|A+|0||100|1|100|100"},
    {"missed",  "30",    "30",     "",        "0|F|30||0|1|0|0"},
    {"missed",  "40",    "2.5",    "",        "93.75|A|2.5||37.5|1|93|93"},
    {"missed",  "30",    "-3",     "",        "110|A+|-3||33|1|110|110"},
    {"missed",  "30",    "1e1",    "",        "96.66667|A|1||29|1|96|96"},
    {"missed",  "100",   "71",     "",        "29|F|71||29|1|28|28"},   // 28.999999999999996 in doubles
    {"missed",  "1,000", "105",    "",        "89.5|A-|105||895|1|89|89"},
    {"missed",  "219",   "23",     "",        "89.49772|B+|23||196|1|89|89"},
    {"correct", "219",   "196",    "",        "89.49|B+|23|23||1|89|89"},
    {"correct", "100",   "",       "",        "0|F|100|100||1|0|0"},
    {"correct", "40",    "37.5",   "",        "93.75|A|2.5|2.5||1|93|93"},
    {"correct", "30",    "33",     "",        "110|A+|-3|-3||1|110|110"},
    {"correct", "3",     "2",      "",        "66.66|D|1|1||1|66|66"},
    {"missed",  "37.5",  "37",     "",        "0|F|37||0|1|0|0"},       // half a point doesn't count
    {"missed",  "37.5",  "37.5",   kTooMany,  "|||||||"},
    {"missed",  "30",    "30.001", kTooMany,  "|||||||"},
    {"correct", "30",    "-1",     kTooMany,  "||||-1|||"},
    {"missed",  "30",    QByteArray(400, '9'), kTooMany, "|||||||"},
    {"missed",  QByteArray(400, '9'), "0", "", "100|A+|0||9223372036854775808|1|100|100"},
    {"missed",  "",      "5",      kNoPoints, "|||5||||"},
    {"missed",  "0",     "0",      kNoPoints, "|||0||||"},
    {"missed",  "0.4",   "0",      kNoPoints, "|||0||||"},              // not a whole point to divide by
    {"correct", "0.5e3", "5",      kNoPoints, "||||5|||"},              // 500 as a test, 0.5 to divide by
};

struct {
    char const* scale;   // typed into the default scale
    char const* points;
    char const* missed;
    std::vector<std::pair<char const*, int>> boxes;
    char const* after;   // the same field, the number of entries, missed
} const kPresses[] = {
    {"amin=98",      "30",  "3",  {{kQuestion, 6}, {kRepaired, 0}},                 "96|1|"},
    {"amin=98",      "",    "3",  {{kQuestion, 6}, {kRepaired, 0}, {kNoPoints, 0}}, "96||3"},
    {"amin=98",      "0.4", "0",  {{kQuestion, 6}, {kRepaired, 0}, {kNoPoints, 0}}, "96||0"},
    {"amin=98",      "30",  "31", {{kQuestion, 6}, {kRepaired, 0}, {kTooMany, 0}},  "96||"},
    {"amin=98",      "30",  "3",  {{kQuestion, 7}},                                 "98||3"},
    {"amin=98",      "",    "3",  {{kQuestion, 7}},                                 "98||3"},
    {"dminusmin=63", "30",  "3",  {{kQuestion, 6}, {kRepaired, 0}},                 "61|1|"},
    // equal bounds and gaps are in order
    {"amin=97",      "30",  "3",  {{kRepaired, 0}},                                 "97|1|"},
    {"aminusmax=91", "30",  "3",  {{kRepaired, 0}},                                 "92|1|"},
    {"aminusmax=91", "",    "3",  {{kNoPoints, 0}},                                 "91||3"},
    // the top goes to 100 in silence, but the field below is compared with what it was
    {"aplusmax=98",  "30",  "3",  {},                                               "100|1|"},
    {"aplusmax=105", "30",  "3",  {},                                               "100|1|"},
    {"aplusmax=97",  "30",  "3",  {{kQuestion, 7}},                                 "100||3"},
};

std::pair<char const*, int> const kMinimums[] = {
    {"A+", 98}, {"A", 93}, {"A-", 90}, {"B+", 88}, {"B", 83}, {"B-", 80}, {"C+", 78},
    {"C", 73}, {"C-", 70}, {"D+", 68}, {"D", 63}, {"D-", 60}, {"F", -1},
};
// clang-format on

} // namespace

/// A press of Grade: the score, the letter, the tallies, the average and the list of entries.
class Grading final : public QObject {
    Q_OBJECT

private slots:
    void aScoreBecomesAnEntryOrIsRefused()
    {
        for (auto const& [field, points, typed, box, results] : kScores) {
            Desk desk;
            desk.useCorrect(QByteArray(field) == "correct");
            if (*box != '\0') {
                desk.expect(box);
            }
            desk.type("total", points);
            desk.grade(typed, field);
            QCOMPARE(typed + u": "_s + desk.show(kResults), typed + u": "_s + results);
            QCOMPARE(desk.show("total pointstemp"), QLatin1String(points + '|' + points));
            QCOMPARE(desk.show("ListBox1").isEmpty(), *box != '\0');
        }
    }

    void aScaleOutOfOrderBringsOneQuestion()
    {
        for (auto const& [scale, points, missed, boxes, after] : kPresses) {
            Desk desk;
            desk.writeAll(scale);
            for (auto const& [text, answer] : boxes) {
                desk.expect(text, answer);
            }
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
            desk.write("percentage", QByteArray::number(percent));
            desk.form().percenttest();
            return desk.show("lettergrade");
        };
        int above = 200;
        for (auto const& [letter, minimum] : kMinimums) {
            QCOMPARE(letterFor(above - 0.6), QLatin1String(letter));   // 97.4 rounds to 97
            QCOMPARE(letterFor(minimum - 0.5), QLatin1String(letter)); // 97.5 rounds to 98
            above = minimum;
        }
        desk.write("dminusmin", "0");
        QCOMPARE(letterFor(0), "D-"_L1); // nothing is below the lowest minimum now
    }

    void aPercentageInAGapKeepsTheLetterBefore()
    {
        Desk desk;
        desk.writeAll("amin=92.5 aminusmax=91.5");
        desk.gradeAll("100", {"8"}); // 92 lies in no band
        QCOMPARE(desk.show("numstudents lettergrade ListBox4"), "1||"_L1);
        QCOMPARE(desk.show(kTallies), "||||"_L1);
        desk.grade("15");
        desk.grade("8");
        QCOMPARE(desk.show("lettergrade ListBox4"), "B|;B;B"_L1);
        QCOMPARE(desk.show(kTallies), "|2|||"_L1);
    }

    void theHistoryHoldsOneRowForEachEntry()
    {
        Desk desk;
        auto const& rows = *static_cast<QTableView*>(desk.widget("ListBox1"))->model();
        QCOMPARE(rows.columnCount(), 2);
        desk.gradeAll("30", {"3", "4", "4"});
        desk.useCorrect(true);
        desk.grade("33", "correct");
        desk.grade("20.5", "correct");
        QCOMPARE(desk.show("ListBox1"), "1,90,%;2,86.666,%;3,86.666,%;4,110,%;5,68.333,%"_L1);
        QCOMPARE(desk.show("ListBox2 ListBox4"), "3;4;4;-3;9.5|A-;B;B;A+;D+"_L1);
        QCOMPARE(desk.show("ListBox3 ListBox5"),
                 "90;88;87;93;88|90;176;262;372;440"_L1); // all fractions dropped
        QCOMPARE(desk.show(kTallies), "2|2||1|"_L1);
        QVERIFY(rows.index(4, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        QVERIFY(rows.index(4, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
    }

    void theLastEntryIsInSight()
    {
        Desk desk;
        desk.gradeAll("30", std::vector<char const*>(20, "3"));
        for (int last = 19; last > 17; --last) {
            auto const* const list = static_cast<QTableView*>(desk.widget("ListBox1"));
            QVERIFY(list->viewport()->rect().contains(list->visualRect(list->model()->index(last, 1))));
            desk.choose("EditUndo");
        }
    }
};

GRADELOOM_TEST(Grading)
#include "test_grading.moc"
