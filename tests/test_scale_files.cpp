#include "tests/harness.h"

#include "frame/file_notices.h"
#include "platform/files.h"

#include <QDir>

namespace {

constexpr char const* kTooLow = "In order to save this grading scale, the minimum for a D- must be greater";
QByteArray const kDefaultFile =
    "100\n98\n97\n93\n92\n90\n89\n88\n87\n83\n82\n80\n79\n78\n77\n73\n72\n70\n69\n68\n67\n63\n62\n60\n";

struct {
    char const* written; // into the default scale
    std::vector<TestSession::Box> notices;
    QLatin1String after; // the lowest minimum and the mark of a repair
    bool saved;
} const kSaves[] = {
    {"foundaproblem=",  {},                            "60|"_L1,  true },
    {"foundaproblem=1", {},                            "60|"_L1,  false}, // an earlier repair
    {"amin=80",         {{kScaleRepaired}},            "60|"_L1,  false},
    {"dminusmin=59.6",  {},                            "60|"_L1,  true },
    {"dminusmin=-0.4",  {},                            "0|"_L1,   true }, // not below zero
    {"dminusmin=-0.5",  {{kTooLow}},                   "-1|"_L1,  false},
    {"aplusmin=10",     {{kScaleRepaired}, {kTooLow}}, "-12|"_L1, false},
};

QString Preferences()
{
    return QString::fromStdString(GetFolderItem("Preferences", 0)->Path());
}

} // namespace

/// The standing scale, scales under a name, and the gate that both saves pass.
class ScaleFiles final : public QObject {
    Q_OBJECT

private slots:
    void init() { QFile::remove(Preferences()); }

    void aSavedScaleStandsAtTheNextStartAndAnUnsoundOneIsRepaired()
    {
        QDir(QFileInfo(Preferences()).path()).removeRecursively(); // the first save makes the folder
        {
            TestSession const session;
            session.setFields("aplusmin=95.5 amax=94.5");
            session.click("PushButton4");
        }
        QCOMPARE(ContentOf(Preferences()), QByteArray(kDefaultFile).replace("98\n97", "95.5\n94.5"));
        QCOMPARE(TestSession().texts("aplusmin amax dminusmin foundaproblem"), "95.5|94.5|60|"_L1);
        WriteFile(Preferences(),
                  QByteArray(kDefaultFile).replace("100", "95")); // only the top is off: no word
        QCOMPARE(TestSession().texts("aplusmax aplusmin foundaproblem"), "100|98|"_L1);
        WriteFile(Preferences(), QByteArray(kDefaultFile).replace("93\n92", "93\n91"));
        QCOMPARE(TestSession({{kScaleRepaired}}).texts("aminusmax foundaproblem"), "92|1"_L1);
    }

    void theGateRepairsRoundsAndRefuses()
    {
        for (auto const& [written, notices, after, saved] : kSaves) {
            QFile::remove(Preferences());
            TestSession session;
            session.fileToChoose = session.pathOf("scale");
            for (char const* const button : {"PushButton4", "PushButton2"}) {
                session.click("PushButton3");
                session.setFields(written);
                for (TestSession::Box const& notice : notices) {
                    session.expectBox(notice.text);
                }
                session.click(button);
                QVERIFY(session.allBoxesSeen());
                QCOMPARE(session.texts("dminusmin foundaproblem"), after);
            }
            QVERIFY2(QFile::exists(Preferences()) == saved && QFile::exists(session.fileToChoose) == saved,
                     written);
            if (after == "60|"_L1) {
                session.click("PushButton4"); // after a refusal the next press finds nothing to stop it
                QVERIFY(QFile::exists(Preferences()));
            }
        }
    }

    void aNamedScaleComesBackAsItWasWritten()
    {
        TestSession session;
        session.enterScores("40", {"4"}); // a scale can be saved while entries stand
        session.setFields("aplusmin=92.5 amax=91.5 amin=91 aminusmax=90");
        session.form().aplusmax().Text(" 100 points");
        session.click("PushButton2"); // cancelled
        FileDialogRequest const request = session.dialogs.at(0);
        QVERIFY(request.saving && request.suggestedName == "AlternativeGradingScale" &&
                QDir(QString::fromStdString(request.folder)).exists());
        session.fileToChoose = session.pathOf("mine");
        session.click("PushButton2");
        session.expectBox("In order to change the current grading scale, you must first reset the data");
        session.chooseCommand("FileOpen"); // with entries: no dialog
        QCOMPARE(session.dialogs.size(), std::size_t(2));
        session.chooseCommand("FileReset");
        session.click("PushButton3");
        session.chooseCommand("FileOpen");
        QCOMPARE(session.texts("aplusmax aplusmin amax amin foundaproblem"), " 100 points|92.5|91.5|91|"_L1);
        QVERIFY(!session.dialogs.back().saving && session.dialogs.back().title == "Select a Grading Scale");
    }

    void everyFormOfAScaleFileIsReadAndWordsAreRepaired()
    {
        QByteArray const seen =
            QByteArray(kDefaultFile).replace("98\n97", "96\n95").replace("62\n60", "62\n61");
        TestSession session;
        session.fileToChoose = session.pathOf("scale");
        for (QByteArray const& bytes :
             {seen, QByteArray(seen).replace("\n", "\r\n"), QByteArray(seen).replace("\n", "\r"),
              "\xEF\xBB\xBF" + seen, seen.chopped(1), seen + "12\n", seen + QByteArray(1'000'000, '\n')}) {
            session.click("PushButton3");
            WriteFile(session.fileToChoose, bytes);
            session.chooseCommand("FileOpen");
            QCOMPARE(session.texts("aplusmax aplusmin dminusmin"), "100|96|61"_L1);
        }
        WriteFile(session.fileToChoose, QByteArray(seen).replace("96", "96\0\xFF"_ba));
        session.chooseCommand("FileOpen");
        QCOMPARE(session.texts("aplusmin"), u"96\0\xFFFD"_s);
        for (QByteArray const& bytes : {""_ba, "a\nfew\nwords\n"_ba, "1\0000\0\n\0"_ba}) {
            WriteFile(session.fileToChoose, bytes);
            session.expectBox(kScaleRepaired);
            session.chooseCommand("FileOpen");
            QCOMPARE(session.texts("aplusmax foundaproblem"), "100|"_L1);
            session.expectBox(kTooLow);
            session.click("PushButton4");
        }
        QVERIFY(!QFile::exists(Preferences()));
    }

    void aFailedSaveIsToldAndTheNextOneWorks()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        session.setFields("dminusmin=59.6");
        session.fileToChoose = session.pathOf("no/such/folder/scale");
        session.expectBox("The file \"scale\" could not be saved: No such file or directory.");
        session.click("PushButton2");
        QCOMPARE(session.texts("dminusmin numstudents foundaproblem"), "60|1|"_L1);
        session.fileToChoose = session.pathOf("scale");
        session.click("PushButton2");
        QCOMPARE(ContentOf(session.fileToChoose), kDefaultFile);
        QVERIFY(QDir().mkpath(Preferences())); // a folder stands in the way of the standing scale
        session.expectBox("The file \"Preferences\" could not be saved: ");
        session.click("PushButton4");
    }

    void aNoticeEndsWithOneFullStopWhateverTheSystemSays()
    {
        TestSession const session;
        QString told;
        PlatformDoors().messageBox = [&told](MessageBoxRequest const& request) {
            told = QString::fromStdString(request.text);
            return 0;
        };
        for (char const* const reason : {"Path not found", "Path not found.", "Path not found. "}) {
            ReportNotOpened(FolderItem("mine"), reason);
            QCOMPARE(told, "The file \"mine\" could not be opened: Path not found."_L1);
        }
    }
};

GRADELOOM_TEST(ScaleFiles)
#include "test_scale_files.moc"
