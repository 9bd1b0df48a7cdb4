#include "tests/harness.h"

#include "platform/files.h"
#include "platform/qt/save_file.h"
#include "platform/qt/text.h"

#include <QDir>
#include <QMessageBox>
#include <QTimer>

using namespace std::string_literals;

namespace {

constexpr char const* kFields = "aplusmax aplusmin amax amin aminusmax aminusmin "
                                "bplusmax bplusmin bmax bmin bminusmax bminusmin "
                                "cplusmax cplusmin cmax cmin cminusmax cminusmin "
                                "dplusmax dplusmin dmax dmin dminusmax dminusmin";
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

constexpr char const* kTooLow = "In order to save this grading scale, the minimum for a D- must be greater";
QByteArray const kDefaultFile = QByteArray(kDefault.data()).replace("|", "\n") + '\n';

struct {
    char const* written; // into the default scale
    std::vector<Desk::Box> notices;
    QLatin1String after; // the lowest minimum and the mark of a repair
    bool saved;
} const kSaves[] = {
    {"foundaproblem=",  {},                       "60|"_L1,  true },
    {"foundaproblem=1", {},                       "60|"_L1,  false}, // an earlier repair
    {"amin=80",         {{kRepaired}},            "60|"_L1,  false},
    {"dminusmin=59.6",  {},                       "60|"_L1,  true },
    {"dminusmin=-0.4",  {},                       "0|"_L1,   true }, // not below zero
    {"dminusmin=-0.5",  {{kTooLow}},              "-1|"_L1,  false},
    {"aplusmin=10",     {{kRepaired}, {kTooLow}}, "-12|"_L1, false},
};

QString Preferences()
{
    return ToQt(GetFolderItem("Preferences", 0)->Path());
}

/// Runs the repair, which must come with its notice or without.
void Repair(Desk& desk, bool withNotice)
{
    if (withNotice) {
        desk.expect(kRepaired);
    }
    desk.form().gradingscaletest();
    QVERIFY(desk.allSeen());
}

constexpr char const* kQuestion =
    "You are about to change the grading scale in the middle of entering grades.";

constexpr char const* kBands[] = {"an A+", "an A", "an A-", "a B+", "a B", "a B-",
                                  "a C+",  "a C",  "a C-",  "a D+", "a D", "a D-"};

/// Moves the focus here as Tab does; the gain of it has then been told.
QLineEdit* Enter(Desk const& desk, char const* name)
{
    desk.widget(name)->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    return desk.widget<QLineEdit>(name);
}

} // namespace

/// The grading scale: its repair, its guard under entered data, the standing scale and scales under a name.
class Scale final : public QObject {
    Q_OBJECT

private slots:
    void init() { QFile::remove(Preferences()); }

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

    void noPutsTheTextBackOnceForEachGainOfTheFocus()
    {
        Desk desk;
        QLineEdit* const field = Enter(desk, "bmax");
        auto const declined = [&](Qt::Key key) {
            desk.expect(kQuestion, kNo);
            QTest::keyClick(field, key);
            return desk.show("bmax fileresetfield numstudents");
        };
        desk.write("total=40");
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(declined(Qt::Key_5), "5||1"_L1); // the focus from before the first entry has stored nothing
        Enter(desk, "cmax");
        Enter(desk, "bmax")->deselect();
        QCOMPARE(declined(Qt::Key_Left), "5|5|1"_L1); // changes nothing: the stored text stays
        QCOMPARE(declined(Qt::Key_6), "5||1"_L1);
        QVERIFY(field->cursorPosition() == 1 && !field->hasSelectedText());
        QCOMPARE(declined(Qt::Key_6), "56||1"_L1); // the second one stands
        Enter(desk, "bminusmax");
        Enter(desk, "bmax");
        QCOMPARE(declined(Qt::Key_Backspace), "56||1"_L1);
        desk.write("amax=100 dmax=0.9");
        desk.expect(kQuestion, kNo);
        Enter(desk, "amax")->deselect();
        QTest::keyClick(desk.widget("amax"), Qt::Key_5); // no room for it
        desk.expect(kQuestion, kNo);
        QTest::keyClick(Enter(desk, "dmax"), Qt::Key_5); // a text of zero is not put back
        QCOMPARE(desk.show("amax dmax"), "100|5"_L1);
    }

    void aChangeWithoutAKeyIsPutBackAndYesThrowsTheEntriesAway()
    {
        Desk desk;
        desk.gradeAll("40", {"4", "8"});
        Enter(desk, "cmax");
        desk.paste("12");
        Enter(desk, "bmax");
        desk.choose("EditCut");
        Compose(Enter(desk, "dmax"), "9");
        QCOMPARE(desk.show("cmax bmax dmax numstudents fileresetfield"), "77|87|67|2|"_L1);
        desk.expect(kQuestion, kYes);
        QTest::keyClicks(Enter(desk, "aplusmin"), u"96"_s); // one question for the two keys
        QCOMPARE(desk.show("aplusmin total pointstemp problem fileresetfield"), "96|40|40||"_L1);
        QCOMPARE(desk.show("numstudents average agrade percentage correct ListBox1 ListBox4"), "||||||"_L1);
    }

    void aBoundaryThatIsOffComesOutInWholeNumbers()
    {
        QByteArrayList const all = QByteArray(kFields).split(' ');
        for (qsizetype band = 1; band < 12; ++band) {
            Desk desk;
            QByteArray const fields = all[2 * band - 1] + ' ' + all[2 * band];
            for (char const* const lower : {"49.5", "49.6", "49.4", "words"}) {
                bool const isOff = lower != "49.5"_L1;
                desk.write(QByteArray(fields).replace(" ", "=50.5 ") + '=' + lower);
                if (isOff) {
                    desk.expect("The difference between the minimum for "s + kBands[band - 1] +
                                " and the maximum for " + kBands[band] + " must be equal to one.");
                }
                desk.press(all[2 * band + 1]);
                QCoreApplication::processEvents();
                QVERIFY(desk.allSeen());
                QCOMPARE(desk.show(fields), isOff ? "51|50"_L1 : "50.5|49.5"_L1);
                Enter(desk, "total");
            }
        }
    }

    void theNoticeComesBeforeTheNextKeyAndLosesNone()
    {
        Desk const desk;
        desk.write("aplusmin=95");
        Enter(desk, "amax");
        PlatformDoors().messageBox = ShowMessageBox; // the real box, closed by Return
        int boxes = 0;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&boxes] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++boxes;
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        closer.start(5);
        QTest::keyClick(desk.widget("amax"), Qt::Key_Tab);
        QTest::keyClicks(desk.widget("amin"), u"94"_s); // the first key finds the notice still to come
        QTRY_COMPARE(boxes, 1);
        desk.activate();
        QCOMPARE(desk.show("aplusmin amax amin"), "95|94|94"_L1);
        QCOMPARE(QApplication::focusWidget(), desk.widget("amin"));
        QTest::qWait(20); // no second notice when the window has come back
        QCOMPARE(boxes, 1);
        desk.write("aplusmin=96");
        Enter(desk, "amax");
        QTest::keyClick(desk.widget("amax"), Qt::Key_Tab);
        QTest::keyClick(desk.widget("amin"), Qt::Key_Tab); // goes ahead of the notice and selects its field
        QTRY_COMPARE(boxes, 2);
        QCOMPARE(qobject_cast<QLineEdit*>(desk.widget("aminusmax"))->selectedText(), "92"_L1);
    }

    void aSavedScaleStandsAtTheNextStartAndAnUnsoundOneIsRepaired()
    {
        QDir(QFileInfo(Preferences()).path()).removeRecursively(); // the first save makes the folder
        {
            Desk const desk;
            desk.write("aplusmin=95.5 amax=94.5");
            desk.press("PushButton4");
        }
        QCOMPARE(Content(Preferences()), QByteArray(kDefaultFile).replace("98\n97", "95.5\n94.5"));
        QCOMPARE(Desk().show("aplusmin amax dminusmin foundaproblem"), "95.5|94.5|60|"_L1);
        SaveWhole(Preferences(),
                  QByteArray(kDefaultFile).replace("100", "95")); // only the top is off: no word
        QCOMPARE(Desk().show("aplusmax aplusmin foundaproblem"), "100|98|"_L1);
        SaveWhole(Preferences(), QByteArray(kDefaultFile).replace("93\n92", "93\n91"));
        QCOMPARE(Desk({{kRepaired}}).show("aminusmax foundaproblem"), "92|1"_L1);
    }

    void theGateRepairsRoundsAndRefuses()
    {
        for (auto const& [written, notices, after, saved] : kSaves) {
            QFile::remove(Preferences());
            Desk desk;
            desk.chosen = desk.at("scale");
            for (char const* const button : {"PushButton4", "PushButton2"}) {
                desk.press("PushButton3");
                desk.write(written);
                for (Desk::Box const& notice : notices) {
                    desk.expect(notice.text);
                }
                desk.press(button);
                QVERIFY(desk.allSeen());
                QCOMPARE(desk.show("dminusmin foundaproblem"), after);
            }
            QVERIFY2(QFile::exists(Preferences()) == saved && QFile::exists(desk.chosen) == saved, written);
            if (after == "60|"_L1) {
                desk.press("PushButton4"); // after a refusal the next press finds nothing to stop it
                QVERIFY(QFile::exists(Preferences()));
            }
        }
    }

    void aNamedScaleComesBackAsItWasWritten()
    {
        Desk desk;
        desk.gradeAll("40", {"4"}); // a scale can be saved while entries stand
        desk.write("aplusmin=92.5 amax=91.5 amin=91 aminusmax=90");
        desk.form().aplusmax().Text(" 100 points");
        desk.press("PushButton2"); // cancelled
        FileDialogRequest const request = desk.asked.at(0);
        QVERIFY(request.saving && request.suggestedName == "AlternativeGradingScale" &&
                QDir(ToQt(request.folder)).exists());
        desk.chosen = desk.at("mine");
        desk.press("PushButton2");
        desk.expect("In order to change the current grading scale, you must first reset the data");
        desk.choose("FileOpen"); // with entries: no dialog
        QCOMPARE(desk.asked.size(), std::size_t(2));
        desk.choose("FileReset");
        desk.press("PushButton3");
        desk.choose("FileOpen");
        QCOMPARE(desk.show("aplusmax aplusmin amax amin foundaproblem"), " 100 points|92.5|91.5|91|"_L1);
        QVERIFY(!desk.asked.back().saving && desk.asked.back().title == "Select a Grading Scale");
    }

    void everyFormOfAScaleFileIsReadAndWordsAreRepaired()
    {
        QByteArray const seen =
            QByteArray(kDefaultFile).replace("98\n97", "96\n95").replace("62\n60", "62\n61");
        Desk desk;
        desk.chosen = desk.at("scale");
        for (QByteArray const& bytes :
             {seen, QByteArray(seen).replace("\n", "\r\n"), QByteArray(seen).replace("\n", "\r"),
              "\xEF\xBB\xBF" + seen, seen.chopped(1), seen + "12\n", seen + QByteArray(1'000'000, '\n')}) {
            desk.press("PushButton3");
            SaveWhole(desk.chosen, bytes);
            desk.choose("FileOpen");
            QCOMPARE(desk.show("aplusmax aplusmin dminusmin"), "100|96|61"_L1);
        }
        SaveWhole(desk.chosen, QByteArray(seen).replace("96", "96\0\xFF"_ba));
        desk.choose("FileOpen");
        QCOMPARE(desk.show("aplusmin"), u"96\0\xFFFD"_s);
        for (QByteArray const& bytes : {""_ba, "a\nfew\nwords\n"_ba, "1\0000\0\n\0"_ba}) {
            SaveWhole(desk.chosen, bytes);
            desk.expect(kRepaired);
            desk.choose("FileOpen");
            QCOMPARE(desk.show("aplusmax foundaproblem"), "100|"_L1);
            desk.expect(kTooLow);
            desk.press("PushButton4");
        }
        QVERIFY(!QFile::exists(Preferences()));
    }

    void aFailedSaveIsToldAndTheNextOneWorks()
    {
        Desk desk;
        desk.gradeAll("40", {"4"});
        desk.write("dminusmin=59.6");
        desk.chosen = desk.at("no/such/folder/scale");
        desk.expect("The file \"scale\" could not be saved: No such file or directory.");
        desk.press("PushButton2");
        QCOMPARE(desk.show("dminusmin numstudents foundaproblem"), "60|1|"_L1);
        desk.chosen = desk.at("scale");
        desk.press("PushButton2");
        QCOMPARE(Content(desk.chosen), kDefaultFile);
        QVERIFY(QDir().mkpath(Preferences())); // a folder stands in the way of the standing scale
        desk.expect("The file \"Preferences\" could not be saved: ");
        desk.press("PushButton4");
    }
};

GRADELOOM_TEST(Scale)
#include "test_scale.moc"
