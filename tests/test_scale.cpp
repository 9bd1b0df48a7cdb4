#include "tests/harness.h"

namespace {

// clang-format off
struct RepairCase {
    char const* name;
    char const* typed;     // into the scale of the tests
    char const* scale;     // after the repair; empty if nothing is to be repaired
    char const* mark;      // in foundaproblem after the repair
    std::size_t notices;   // of two repairs
} const kRepairs[] = {
    {"a minimum above its maximum",     "amin=80",
     "100 98 97 80 79 78 77 76 75 74 73 72 71 70 69 68 67 66 65 64 63 63",   "1", 1},
    {"the typed top counts below it",   "aplusmax=95",               "100 99 98",       "1", 1},
    {"the typed top counts above it",   "aplusmax=105 aplusmin=103", "100 103 102",     "1", 2},
    {"numbers below zero set no mark",  "aplusmin=10",
     "100 10 9 8 7 6 5 4 3 2 1 0 -1 -2 -3 -4 -5 -6 -7 -8 -9 -10 -11 -12",   "",  1},
    {"zero is not below zero",          "dminusmin=0 dminusmax=61",
     "100 98 97 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 0", "1", 1},
    {"fractions exactly one apart",     "amin=92.3 aminusmax=91.3",  "",                "",  0},
    {"a fraction is passed on",         "amin=92.5",                 "100 98 97 92.5 91.5", "1", 1},
    {"64.1 - 63.1 is not quite 1",      "dmin=64.1 dminusmax=63.1",
     "100 98 97 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 64.1 63.1", "1", 2},
    {"a minimum equal to its maximum",  "cmin=77 cminusmax=76",      "",                "",  0},
    {"a maximum that is too low",       "cmax=75",                   kTestScale,     "1", 1},
    {"a maximum that is too high",      "cmax=78",                   kTestScale,     "1", 1},
    {"words count as 0",                "aplusmax=word dminusmin=",
     "100 99 98 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 ", "1", 1},
};
// clang-format on

} // namespace

/// The grading scale: its repair and its default.
class Scale final : public QObject {
    Q_OBJECT

private slots:
    void repairWorksFromTheTopDown_data() { AddRows(kRepairs); }
    void repairWorksFromTheTopDown()
    {
        QFETCH(RepairCase const*, row);
        TestSession session(std::vector(row->notices, TestSession::Box{kScaleRepaired}));
        session.setFields(row->typed);
        QString const before = session.texts(kScaleFieldNames).replace(u'|', u' ');
        session.whileBoxIsUp = [&] { session.expectFields("foundaproblem="); }; // set after the notice
        session.form().gradingscaletest();
        session.expectScale(*row->scale != '\0' ? row->scale : before);
        session.expectFields("foundaproblem="_L1 + row->mark);
        session.whileBoxIsUp = nullptr;
        session.form().gradingscaletest();
        session.expectFields("foundaproblem="_L1 + row->mark); // once set it stays
    }

    void defaultRestoresTheScaleUnlessThereAreEntries()
    {
        TestSession session;
        session.play("write amin=word dminusmin=50 foundaproblem=1; PushButton3");
        QCOMPARE(session.texts(kScaleFieldNames), session.startScale);
        session.expectFields("foundaproblem=1");
        session.expectBox(
            "Changing the grading scale to the Default cannot happen until you have reset the scores "
            "already entered.");
        session.play("total=30; missed=3 Return; write dminusmin=50; PushButton3");
        session.expectFields("dminusmin=50");
    }
};

GRADELOOM_TEST(Scale)
#include "test_scale.moc"
