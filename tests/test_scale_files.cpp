#include "tests/harness.h"

#include "platform/files.h"
#include "platform/qt/text.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

// The standing scale, scales under a name, and the gate that both saves pass.

namespace {

constexpr char const* kRepairNotice = "An attempt was made to fix the grading scale.";
constexpr char const* kMinimumNotice =
    "In order to save this grading scale, the minimum for a D- must be greater";
QByteArray const kDefault =
    "100\n98\n97\n93\n92\n90\n89\n88\n87\n83\n82\n80\n79\n78\n77\n73\n72\n70\n69\n68\n67\n63\n62\n60\n";

QByteArray With(QByteArray const& lines, QByteArray const& others)
{
    return QByteArray(kDefault).replace(lines, others);
}

QString Preferences()
{
    return ToQt(GetFolderItem("Preferences", 0)->Path());
}

} // namespace

class TestScaleFiles : public QObject {
    Q_OBJECT

private slots:
    void init() { QFile::remove(Preferences()); }

    void aSavedScaleStandsAtTheNextStart()
    {
        QDir(QFileInfo(Preferences()).path()).removeRecursively(); // the first save makes the folder
        {
            Desk desk;
            desk.write("aplusmin", "95.5");
            desk.write("amax", "94.5");
            desk.press("PushButton4");
        }
        QCOMPARE(Content(Preferences()), With("98\n97", "95.5\n94.5"));
        QCOMPARE(Desk().show("aplusmin amax dminusmin foundaproblem"), QStringLiteral("95.5|94.5|60|"));
    }

    void anUnsoundStandingScaleIsRepairedAtTheStart()
    {
        QDir().mkpath(QFileInfo(Preferences()).path());
        Put(Preferences(), With("100", "95")); // only the top is off: no word
        QCOMPARE(Desk().show("aplusmax aplusmin foundaproblem"), QStringLiteral("100|98|"));
        Put(Preferences(), With("93\n92", "93\n91"));
        QCOMPARE(Desk(kRepairNotice).show("aminusmax foundaproblem"), QStringLiteral("92|1"));
    }

    void theGateRepairsRoundsAndRefuses()
    {
        struct Row {
            char const* field;
            char const* text;
            std::vector<char const*> notices;
            char const* lowest;
            bool saved;
        };
        QTemporaryDir folder;
        for (Row const& row : {
                 Row{"foundaproblem", "",     {},                              "60",  true },
                 Row{"foundaproblem", "1",    {},                              "60",  false}, // an earlier repair
                 Row{"amin",          "80",   {kRepairNotice},                 "60",  false},
                 Row{"dminusmin",     "59.6", {},                              "60",  true },
                 Row{"dminusmin",     "-0.4", {},                              "0",   true }, // not below zero
                 Row{"dminusmin",     "-0.5", {kMinimumNotice},                "-1",  false},
                 Row{"aplusmin",      "10",   {kRepairNotice, kMinimumNotice}, "-12", false},
        }) {
            QFile::remove(Preferences());
            Desk desk;
            desk.chosen = FromQt(folder.filePath(QString::fromLatin1(row.text) + u'n'));
            for (char const* const button : {"PushButton4", "PushButton2"}) {
                desk.press("PushButton3");
                desk.write(row.field, row.text);
                for (char const* const notice : row.notices) {
                    desk.expect(notice);
                }
                desk.press(button);
                QVERIFY(desk.allSeen());
                QCOMPARE(desk.show("dminusmin foundaproblem"), QLatin1String(row.lowest) + u'|');
            }
            QCOMPARE(QFile::exists(Preferences()) && QFile::exists(ToQt(desk.chosen)), row.saved);
            if (!row.saved && row.lowest == std::string("60")) {
                desk.press("PushButton4"); // the next press finds nothing to stop it
                QVERIFY(QFile::exists(Preferences()));
            }
        }
    }

    void aNamedScaleComesBackAsItWasWritten()
    {
        QTemporaryDir folder;
        Desk desk;
        desk.gradeAll("40", {"4"}); // a scale can be saved while entries stand
        desk.write("aplusmax", " 100 points");
        desk.write("aplusmin", "92.5");
        desk.write("amax", "91.5");
        desk.write("amin", "91");
        desk.write("aminusmax", "90");
        desk.press("PushButton2"); // cancelled
        FileDialogRequest const request = desk.asked.at(0);
        QVERIFY(request.saving && request.title == "Save your file" && request.prompt == "Enter a filename" &&
                request.suggestedName == "AlternativeGradingScale" && QDir(ToQt(request.folder)).exists());
        desk.chosen = FromQt(folder.filePath(QStringLiteral("mine")));
        desk.press("PushButton2");
        desk.expect("In order to change the current grading scale, you must first reset the data");
        desk.choose("FileOpen"); // with entries: no dialog
        QCOMPARE(desk.asked.size(), std::size_t(2));
        desk.choose("FileReset");
        desk.press("PushButton3");
        desk.choose("FileOpen");
        QCOMPARE(desk.show("aplusmax aplusmin amax amin foundaproblem"),
                 QStringLiteral(" 100 points|92.5|91.5|91|"));
        QVERIFY(!desk.asked.back().saving && desk.asked.back().title == "Select a Grading Scale");
    }

    void everyFormOfAScaleFileIsRead()
    {
        QByteArray const seen = With("98\n97", "96\n95").replace("62\n60", "62\n61");
        QTemporaryDir folder;
        Desk desk;
        desk.chosen = FromQt(folder.filePath(QStringLiteral("scale")));
        for (QByteArray const& bytes :
             {seen, QByteArray(seen).replace("\n", "\r\n"), QByteArray(seen).replace("\n", "\r"),
              "\xEF\xBB\xBF" + seen, seen.chopped(1), seen + "12\n", seen + QByteArray(1'000'000, '\n')}) {
            desk.press("PushButton3");
            Put(ToQt(desk.chosen), bytes);
            desk.choose("FileOpen");
            QCOMPARE(desk.show("aplusmax aplusmin dminusmin"), QStringLiteral("100|96|61"));
        }
        Put(ToQt(desk.chosen), QByteArray(seen).replace("96", QByteArray("96\0\xFF", 4)));
        desk.choose("FileOpen");
        QCOMPARE(desk.show("aplusmin"), QStringLiteral("96") + QChar(0) + QChar(0xFFFD));
    }

    void aFileOfWordsIsRepairedAndItsSaveRefused()
    {
        QTemporaryDir folder;
        Desk desk;
        desk.chosen = FromQt(folder.filePath(QStringLiteral("scale")));
        for (QByteArray const& bytes : {QByteArray(), QByteArray("a\nfew\nwords\n"),
                                        QByteArray("1\0"
                                                   "0\0\n\0",
                                                   6)}) {
            Put(ToQt(desk.chosen), bytes);
            desk.expect(kRepairNotice);
            desk.choose("FileOpen");
            QCOMPARE(desk.show("aplusmax foundaproblem"), QStringLiteral("100|"));
            desk.expect(kMinimumNotice);
            desk.press("PushButton4");
        }
        QVERIFY(!QFile::exists(Preferences()));
    }

    void aFailedSaveIsToldAndTheNextOneWorks()
    {
        QTemporaryDir folder;
        Desk desk;
        desk.gradeAll("40", {"4"});
        desk.chosen = FromQt(folder.filePath(QStringLiteral("no/such/folder/scale")));
        desk.write("dminusmin", "59.6");
        desk.expect("The file \"scale\" could not be saved: No such file or directory.");
        desk.press("PushButton2");
        QCOMPARE(desk.show("dminusmin numstudents foundaproblem"), QStringLiteral("60|1|"));
        desk.chosen = FromQt(folder.filePath(QStringLiteral("scale")));
        desk.press("PushButton2");
        QCOMPARE(Content(ToQt(desk.chosen)), kDefault);
        QVERIFY(QDir().mkpath(Preferences())); // a folder stands in the way of the standing scale
        desk.expect("The file \"Preferences\" could not be saved: ");
        desk.press("PushButton4");
        QVERIFY(QDir().rmdir(Preferences()));
    }
};

GRADELOOM_TEST(TestScaleFiles)
#include "test_scale_files.moc"
