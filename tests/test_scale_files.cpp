#include "tests/harness.h"

#include "frame/file_notices.h"
#include "platform/files.h"
#include "platform/qt/save_file.h"
#include "platform/qt/text.h"

#include <QDir>

namespace {

constexpr char const* kTooLow = "In order to save this grading scale, the minimum for a D- must be greater";
QByteArray const kDefaultFile =
    "100\n98\n97\n93\n92\n90\n89\n88\n87\n83\n82\n80\n79\n78\n77\n73\n72\n70\n69\n68\n67\n63\n62\n60\n";

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
        desk.expect("The file \"scale\" could not be saved: " + NoSuchFolder() + ".");
        desk.press("PushButton2");
        QCOMPARE(desk.show("dminusmin numstudents foundaproblem"), "60|1|"_L1);
        desk.chosen = desk.at("scale");
        desk.press("PushButton2");
        QCOMPARE(Content(desk.chosen), kDefaultFile);
        QVERIFY(QDir().mkpath(Preferences())); // a folder stands in the way of the standing scale
        desk.expect("The file \"Preferences\" could not be saved: ");
        desk.press("PushButton4");
    }

    void aNoticeEndsWithOneFullStopWhateverTheSystemSays()
    {
        Desk const desk;
        QString told;
        PlatformDoors().messageBox = [&told](MessageBoxRequest const& request) {
            told = ToQt(request.text);
            return 0;
        };
        for (char const* const reason : {"Path not found", "Path not found.", "Path not found. "}) {
            TellUnopened(FolderItem("mine"), reason);
            QCOMPARE(told, "The file \"mine\" could not be opened: Path not found."_L1);
        }
    }
};

GRADELOOM_TEST(ScaleFiles)
#include "test_scale_files.moc"
