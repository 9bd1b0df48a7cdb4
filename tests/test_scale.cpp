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
void Repair(TestSession& session, bool withNotice)
{
    if (withNotice) {
        session.expectBox(kScaleRepaired);
    }
    session.form().gradingscaletest();
    QVERIFY(session.allBoxesSeen());
}

} // namespace

/// The grading scale: its repair and its default.
class Scale final : public QObject {
    Q_OBJECT

private slots:
    void theRepairMendsFromTheTopDown()
    {
        for (auto const& [typed, scale, marked, isMended] : kRepairs) {
            TestSession session;
            QCOMPARE(session.texts(kScaleFieldNames), kDefault);
            session.setFields(typed);
            QStringList expected = session.texts(kScaleFieldNames).split(u'|');
            QStringList const mended = QString::fromLatin1(scale).split(u'|', Qt::SkipEmptyParts);
            std::copy(mended.begin(), mended.end(), expected.begin());
            Repair(session, !mended.isEmpty());
            QCOMPARE(session.texts(kScaleFieldNames), expected.join(u'|'));
            Repair(session, !isMended);
            QCOMPARE(session.texts("foundaproblem"), QLatin1String(marked)); // once set it stays
        }
    }

    void aMaximumFollowsTheMinimumAboveItAndAMinimumItsOwnMaximum()
    {
        TestSession session;
        QList<QByteArray> const fields = QByteArray(kScaleFieldNames).split(' ');
        for (qsizetype i = 1; i < fields.size(); ++i) {
            bool const isMaximum = i % 2 == 0;
            int const above = session.texts(fields[i - 1]).toInt();
            int const highest = isMaximum ? above - 1 : above;
            session.setFields(fields[i] + '=' + QByteArray::number(isMaximum ? above - 2 : above));
            Repair(session, i < fields.size() - 1); // of a minimum, the boundary below is off
            QCOMPARE(session.texts(fields[i]).toInt(), highest);
            session.setFields(fields[i] + '=' + QByteArray::number(highest + 1));
            Repair(session, true);
            QCOMPARE(session.texts(fields[i]).toInt(), above - 1);
            session.click("PushButton3");
        }
    }

    void theDefaultButtonActsOnlyWithoutEntries()
    {
        TestSession session;
        session.setFields("amin=word dminusmin=50 foundaproblem=1");
        session.click("PushButton3");
        QCOMPARE(session.texts(kScaleFieldNames) + session.texts("foundaproblem"), kDefault + "1"_L1);
        session.enterScores("30", {"3"});
        session.setFields("dminusmin=50");
        session.expectBox("Changing the grading scale to the Default cannot happen until you have reset");
        session.click("PushButton3");
        QCOMPARE(session.texts("dminusmin"), "50"_L1);
    }
};

GRADELOOM_TEST(Scale)
#include "test_scale.moc"
