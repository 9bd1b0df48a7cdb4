#include "frame/conversions.h"
#include "tests/harness.h"

#include <limits>
#include <locale>

using namespace std::string_literals;

namespace {

using Limits = std::numeric_limits<double>;
constexpr double kLargest = Limits::max();
constexpr Integer kHighest = std::numeric_limits<Integer>::max();
constexpr Integer kLowest = std::numeric_limits<Integer>::min();

std::string const kManyNines(400, '9');
std::string const kManyZeros(400, '0');

struct Reading {
    std::string text;
    double val;
    double cdbl = val;
};

// clang-format off
Reading const kReadings[] = {
    // a number may have blanks before it and anything behind it; no blank parts its sign from its digits
    {"", 0.0}, {" \t-5", -5.0}, {"\n5", 0.0}, {"12 of 30", 12.0}, {"1.2.3", 1.2}, {"+5", 5.0}, {"- 5", 0.0},
    {"--5", 0.0}, {".5", 0.5}, {"5.", 5.0}, {".", 0.0}, {".e5", 0.0}, {"1 e3", 1.0}, {"/5", 0.0}, {":5", 0.0},
    // commas in front of full groups of three are of thousands, others are decimal commas
    {"1,000.5", 1000.5}, {"1,000,5", 1000.0}, {"1,000,000", 1e6}, {"123,456", 123456.0}, {"1234,567", 1234.567},
    {"1,0000", 1.0}, {"0,125", 0.125}, {"12,5,3", 12.5}, {",5", 0.5}, {"5,", 5.0}, {"1.5,5", 1.5}, {"1,23,456", 1.23},
    // there is no other notation; neither length nor size is a fault; 2^53 + 1 is a tie
    {"0x10", 0.0}, {"inf", 0.0}, {"nan", 0.0}, {"1e", 1.0}, {"1e+", 1.0},
    {kManyNines, kLargest}, {"-" + kManyNines, -kLargest}, {kManyZeros + "7", 7.0}, {"0." + kManyZeros + "7", 0.0},
    {"9007199254740993", 9007199254740992.0},
    // CDbl alone reads an exponent
    {"1e3", 1.0, 1000.0}, {"0.5E3", 0.5, 500.0}, {"25e-1", 25.0, 2.5}, {"25e+1", 25.0, 250.0}, {"1,000e3", 1000.0, 1e6},
    {"1e308", 1.0, 1e308}, {"1e309", 1.0, kLargest}, {"-1e99999999999", -1.0, -kLargest}, {"0e999", 0.0, 0.0},
    {"5e-324", 5.0, 5e-324}, {"2e-324", 2.0, 0.0}, {"1e-99999999999", 1.0, 0.0}, {"1e03", 1.0, 1000.0},
    {"0." + kManyZeros + "7e401", 0.0, 7.0}, {"7" + kManyZeros + "e-400", kLargest, 7.0},
    // digits, signs and blanks of every script
    {"\u0663\u0667.\u0665", 37.5},       // Arabic-Indic digits
    {"\u06F3\u06F7\u066B\u06F5", 37.5},  // extended ones with their own decimal point
    {"\u0661\u066C\u0660\u0660\u0660", 1000.0}, {"\u0967\u0968", 12.0}, {"\U0001D7D7\U0001D7CE", 90.0},
    {"\uFF19\uFF10\uFF0E\uFF15", 90.5}, {"\uFF17\uFF0C\uFF15", 7.5}, {"\u22125", -5.0}, {"\uFF0D\uFF15", -5.0},
    {"\uFF0B\uFF15", 5.0}, {"\u00A0\u2003\u30005", 5.0}, {"5\u00A0000", 5.0}, {"\uFF11e\uFF13", 1.0, 1000.0},
    {"\u00BD", 0.0}, {"\u2160", 0.0}, {"\u00B2", 0.0},              // a half, a Roman numeral, a square: no digits
    {"5\xFF", 5.0}, {"\xD9", 0.0}, {"\xF0\x9D\x9F", 0.0}, // bytes that are no text
};

struct Writing {
    double number;
    char const* seven;       // digits
    char const* two = seven; // decimals
    char const* three = two;
} const kWritings[] = {
    {0.0, "0"}, {-0.0, "0"}, {-12.5, "-12.5"}, {1e15, "1000000000000000"}, {200.0 / 3.0, "66.66667", "66.66", "66.666"},
    {2.0 / 3.0, "0.6666667", "0.66", "0.666"}, {90.1, "90.1"}, {99.999999, "100", "99.99", "99.999"},
    {0.00001, "0.00001", "0"}, {-1e-10, "-0.0000000001", "0"}, {-0.001, "-0.001", "0", "-0.001"},
    {19600.0 / 219.0, "89.49772", "89.49", "89.497"}, // rounded it would be 89.5, a grade higher
    {28.999999999999996, "29"},                       // 29 at 15 digits, what follows is noise
    // ties of seven digits go to the even one; never fewer digits than the whole part has
    {100000.25, "100000.2", "100000.25"}, {100000.75, "100000.8", "100000.75"}, {1000000.5, "1000000", "1000000.5"},
    {1000001.5, "1000002", "1000001.5"}, {9999999.5, "10000000", "9999999.5"}, {12345678.9, "12345679", "12345678.9"},
    {9007199254740993.0, "9007199254740992"}, // whole numbers keep all digits
    {Limits::quiet_NaN(), "NaN"},
};

// One conversion reads an exponent, the other does not: where each of them reads what a user or a file has brought.
Scenario const kSites[] = {
    {"the number missed, Val", "total=30; missed=4e1 Return", {}, "lastmissed=4 numstudents=1"},
    {"the number correct, Val", "total=30; checkcorrect; correct=2e1 Return", {}, "lastmissed=28 percentage=6.66"},
    {"whether there are points, CDbl", "total=1e-999; missed=0 Return", {{kNeedsPoints}}, "numstudents= missed=0"},
    {"the number of points, Val", "total=2.5e1; missed=1 Return", {}, "percentage=50 numstudents=1"},
    {"the scale at a press of Grade, Val", "write aminusmin=9e1; total=30; missed=3 Return", {{kScaleUnsound, kNo}},
     "aminusmin=9e1 numstudents="},
    {"the top of the scale, Val", "write aplusmax=1e2; total=30; missed=3 Return", {{kScaleUnsound, kYes}},
     "aplusmax=100 numstudents=1"},
    {"the minimum of a boundary, CDbl", "write aplusmin=9.8e1; focus amin", {}, "aplusmin=9.8e1 amax=97"},
    {"the maximum of a boundary, CDbl", "write amax=9.7e1; focus amin", {}, "aplusmin=98 amax=9.7e1"},
    {"the lowest minimum at a save, CDbl", "write dminusmin=1.5e1; PushButton2", {}, "dminusmin=15"},
    {"the stored text, CDbl", "total=30; missed=3 Return; write dmax=1e-1; focus dmax; key 5", {{kDeletesData, kNo}}, "dmax=5"},
};
// clang-format on

/// A locale that writes 1234.5 as 1234,5.
struct CommaLocale final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

} // namespace

/// The conversions between text and numbers, on both sides of each of their borders, whatever the locale is.
class Conversions final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { std::locale::global(std::locale(std::locale(), new CommaLocale)); }

    void textsAreReadUpToWhereTheirNumberEnds()
    {
        for (auto const& [text, val, cdbl] : kReadings) {
            QVERIFY2(Val(text) == val && CDbl(text) == cdbl, text.c_str());
        }
    }

    void strKeepsSevenDigitsAndFormatTruncates()
    {
        for (auto const& [number, seven, two, three] : kWritings) {
            QCOMPARE(Str(number), std::string(seven));
            QCOMPARE(Format(number, "#.##") + ' ' + Format(number, "#.###"), two + " "s + three);
        }
        QVERIFY(Str(kLargest).size() == 309 && Str(1234567.0) == "1234567" && CDbl(Str(5e-324)) == 5e-324);
        QVERIFY(CDbl(Str(Limits::infinity())) == kLargest && CDbl(Str(-Limits::infinity())) == -kLargest);
        QVERIFY(Str(Integer{0}) == "0" && Str(kLowest) == "-9223372036854775808");
    }

    void exponentsAreReadOnlyWhereTheyCount_data() { AddRows(kSites); }
    void exponentsAreReadOnlyWhereTheyCount() { CheckScenario(); }

    void halvesRoundUpAndIntegersTruncateAndSaturate()
    {
        QVERIFY(Round(89.5) == 90.0 && Round(88.5) == 89.0 && Round(-0.5) == -1.0 && Round(89.49) == 89.0);
        QVERIFY(Round(0.49999999999999994) == 0.0); // adding a half first would make it 1
        QVERIFY(ToInteger(87.9) == 87 && ToInteger(-87.9) == -87 && ToInteger(Limits::quiet_NaN()) == 0);
        QVERIFY(ToInteger(9223372036854775808.0) == kHighest && ToInteger(-1e300) == kLowest); // 2^63
        QCOMPARE(ToInteger(9223372036854774784.0), Integer{9223372036854774784}); // the number below it
        QVERIFY(Sum(kHighest, 1) == kHighest && Sum(kHighest - 1, 1) == kHighest && Sum(2, -3) == -1);
        QVERIFY(Sum(kLowest, -1) == kLowest && Sum(kLowest + 1, -1) == kLowest && Sum(2, 0) == 2);
    }

    void everyScoreRoundsCorrectlyInBothModes()
    {
        for (int points = 1; points <= 1000; ++points) {
            for (int correct = 0; correct <= points; ++correct) {
                double const percent = static_cast<double>(correct) / points * 100.0;
                std::string const plain = Str(percent);
                std::string const cut = Format(percent, "#.##");
                int const exact = (200 * correct + points) / (2 * points);
                QVERIFY2(Round(CDbl(plain)) == exact && Round(CDbl(cut)) == exact, plain.c_str());
            }
        }
    }
};

GRADELOOM_TEST(Conversions)
#include "test_conversions.moc"
