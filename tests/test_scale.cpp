#include "tests/harness.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char const* kFields =
    "aplusmax aplusmin amax amin aminusmax aminusmin bplusmax bplusmin bmax bmin bminusmax bminusmin "
    "cplusmax "
    "cplusmin cmax cmin cminusmax cminusmin dplusmax dplusmin dmax dmin dminusmax dminusmin";
constexpr char const* kDefault = "100|98|97|93|92|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|63|62|60";

// clang-format off
struct {
    char const* typed;  // into the default scale
    char const* scale;  // after the repair; empty if there is nothing to mend
    char const* marked;
} const kRepairs[] = {
    {"amin=93",                    "",                                                                            ""},
    {"amin=80",                    "100|98|97|80|79|78|77|76|75|74|73|72|71|70|69|68|67|66|65|64|63|63|62|60",    "1"},
    // the number that stood at the top counts for the next test
    {"aplusmax=95",                "100|99|98|93|92|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|63|62|60",    "1"},
    {"aplusmax=105 aplusmin=103",  "100|103|102|93|92|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|63|62|60",  "1"},
    // below zero there is no mark, and no notice for it alone
    {"aplusmin=10",                "100|10|9|8|7|6|5|4|3|2|1|0|-1|-2|-3|-4|-5|-6|-7|-8|-9|-10|-11|-12",           ""},
    {"dminusmin=-1",               "",                                                                            ""},
    {"dminusmin=0",                "",                                                                            ""},
    // fractions exactly one apart stay, others are passed on; 64.1 - 63.1 is 0.9999999999999929
    {"amin=92.5 aminusmax=91.5",   "",                                                                            ""},
    {"amin=92.3 aminusmax=91.3",   "",                                                                            ""},
    {"amin=92.5",                  "100|98|97|92.5|91.5|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|63|62|60", "1"},
    {"dmin=64.1 dminusmax=63.1",   "100|98|97|93|92|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|64.1|63.1|60", "1"},
    {"aplusmax=word dminusmin=",   "100|99|98|93|92|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|63|62|",      "1"},
};
// clang-format on

/// Runs the repair, which must come with its notice or without.
void Repair(Desk& desk, bool withNotice)
{
    if (withNotice) {
        desk.expect("An attempt was made to fix the grading scale.");
    }
    desk.form().gradingscaletest();
    QVERIFY(desk.allSeen());
}

} // namespace

/// The default scale and the repair of a scale.
class Scale final : public QObject {
    Q_OBJECT

private slots:
    void theRepairMendsFromTheTopDown()
    {
        for (auto const& [typed, scale, marked] : kRepairs) {
            Desk desk;
            QCOMPARE(desk.show(kFields), QLatin1String(kDefault));
            desk.writeAll(typed);
            QString const before = desk.show(kFields);
            Repair(desk, *scale != '\0');
            QCOMPARE(desk.show(kFields), *scale != '\0' ? QString(scale) : before);
            bool const isMended = !QByteArray(typed).contains("103") && !QByteArray(typed).contains("64.1");
            Repair(desk, !isMended);
            QCOMPARE(desk.show("foundaproblem"), QLatin1String(marked)); // once set it stays
        }
    }

    void aMaximumFollowsTheMinimumAboveItAndAMinimumItsOwnMaximum()
    {
        Desk desk;
        QList<QByteArray> const fields = QByteArray(kFields).split(' ');
        for (qsizetype i = 1; i < fields.size(); ++i) {
            bool const isMaximum = i % 2 == 0;
            bool const isLast = i == fields.size() - 1;
            int const above = desk.show(fields[i - 1]).toInt();
            desk.write(fields[i], QByteArray::number(isMaximum ? above - 2 : above)); // as high as may be
            Repair(desk, !isLast); // of a minimum, the boundary below is off
            QCOMPARE(desk.show(fields[i]).toInt(), isMaximum ? above - 1 : above);
            desk.write(fields[i], QByteArray::number(isMaximum ? above : above + 1));
            Repair(desk, true);
            QCOMPARE(desk.show(fields[i]).toInt(), above - 1);
            desk.form().PushButton3_Action();
        }
    }

    void theDefaultButtonActsOnlyWithoutEntries()
    {
        Desk desk;
        desk.writeAll("amin=word dminusmin=50 foundaproblem=1");
        QTest::mouseClick(desk.widget("PushButton3"), Qt::LeftButton);
        QCOMPARE(desk.show(kFields) + desk.show("foundaproblem"), QLatin1String(kDefault) + "1"_L1);

        desk.gradeAll("30", {"3"});
        desk.write("dminusmin", "50");
        desk.expect("Changing the grading scale to the Default cannot happen until you have reset");
        QTest::mouseClick(desk.widget("PushButton3"), Qt::LeftButton);
        QCOMPARE(desk.show("dminusmin"), "50"_L1);
        desk.choose("FileReset");
        QTest::mouseClick(desk.widget("PushButton3"), Qt::LeftButton);
        QCOMPARE(desk.show(kFields), QLatin1String(kDefault));
    }
};

GRADELOOM_TEST(Scale)
#include "test_scale.moc"
