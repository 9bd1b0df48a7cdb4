#include "tests/harness.h"

namespace {

constexpr auto kDefault = "100|98|97|93|92|90|89|88|87|83|82|80|79|78|77|73|72|70|69|68|67|63|62|60"_L1;

// clang-format off
struct {
    char const* typed;   // into the default scale
    char const* scale;   // from its start after the repair, the rest is as it was; empty if nothing is to mend
    char const* marked;
    bool isMended;
} const kRepairs[] = {
    {"amin=80",                   "100|98|97|80|79|78|77|76|75|74|73|72|71|70|69|68|67|66|65|64|63|63|62",   "1", true},
    // the number that stood at the top counts for the next test
    {"aplusmax=95",               "100|99|98|93",                                                            "1", true},
    {"aplusmax=105 aplusmin=103", "100|103|102|93",                                                          "1", false},
    // below zero there is no mark, and no notice for it alone
    {"aplusmin=10",               "100|10|9|8|7|6|5|4|3|2|1|0|-1|-2|-3|-4|-5|-6|-7|-8|-9|-10|-11|-12",       "",  true},
    {"dminusmin=-1",              "",                                                                        "",  true},
    // fractions exactly one apart stay, others are passed on; 64.1 - 63.1 is 0.9999999999999929
    {"amin=92.3 aminusmax=91.3",  "",                                                                        "",  true},
    {"amin=92.5",                 "100|98|97|92.5|91.5|90",                                                  "1", true},
    {"dmin=64.1 dminusmax=63.1",  "100",                                                                     "1", false},
    {"aplusmax=word dminusmin=",  "100|99|98|93",                                                            "1", true},
};
// clang-format on

/// Runs the repair, which must come with its notice or without.
void Repair(Desk& desk, bool withNotice)
{
    if (withNotice) {
        desk.expect(kRepaired);
    }
    desk.form().gradingscaletest();
    QVERIFY(desk.allSeen());
}

} // namespace

/// The grading scale: its repair and its default.
class Scale final : public QObject {
    Q_OBJECT

private slots:
    void theRepairMendsFromTheTopDown()
    {
        for (auto const& [typed, scale, marked, isMended] : kRepairs) {
            Desk desk;
            QCOMPARE(desk.show(kFields), kDefault);
            desk.write(typed);
            QStringList expected = desk.show(kFields).split(u'|');
            QStringList const mended = QString::fromLatin1(scale).split(u'|', Qt::SkipEmptyParts);
            std::copy(mended.begin(), mended.end(), expected.begin());
            Repair(desk, !mended.isEmpty());
            QCOMPARE(desk.show(kFields), expected.join(u'|'));
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
            int const above = desk.show(fields[i - 1]).toInt();
            int const highest = isMaximum ? above - 1 : above;
            desk.write(fields[i] + '=' + QByteArray::number(isMaximum ? above - 2 : above));
            Repair(desk, i < fields.size() - 1); // of a minimum, the boundary below is off
            QCOMPARE(desk.show(fields[i]).toInt(), highest);
            desk.write(fields[i] + '=' + QByteArray::number(highest + 1));
            Repair(desk, true);
            QCOMPARE(desk.show(fields[i]).toInt(), above - 1);
            desk.press("PushButton3");
        }
    }

    void theDefaultButtonActsOnlyWithoutEntries()
    {
        Desk desk;
        desk.write("amin=word dminusmin=50 foundaproblem=1");
        desk.press("PushButton3");
        QCOMPARE(desk.show(kFields) + desk.show("foundaproblem"), kDefault + "1"_L1);
        desk.gradeAll("30", {"3"});
        desk.write("dminusmin=50");
        desk.expect("Changing the grading scale to the Default cannot happen until you have reset");
        desk.press("PushButton3");
        QCOMPARE(desk.show("dminusmin"), "50"_L1);
    }
};

GRADELOOM_TEST(Scale)
#include "test_scale.moc"
