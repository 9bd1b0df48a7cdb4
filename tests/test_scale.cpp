#include "tests/harness.h"

#include <QDir>

using namespace std::string_literals;

namespace {

constexpr char const* kTooLow =
    "In order to save this grading scale, the minimum for a D- must be greater than or equal to zero.";
QByteArray const kTestFile = QByteArray(kTestScale).replace(' ', '\n') + '\n';

// clang-format off
struct RepairCase {
    char const* name;
    char const* typed;     // into the scale of the tests
    char const* scale;     // after the repair
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
    {"a fraction is passed on",         "amin=92.5",                 "100 98 97 92.5 91.5", "1", 1},
    {"64.1 - 63.1 is not quite 1",      "dmin=64.1 dminusmax=63.1",
     "100 98 97 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 64.1 63.1", "1", 2},
    {"equal bounds, fractions one apart", "cmin=77 cminusmax=76 amin=92.3 aminusmax=91.3",
     "100 98 97 92.3 91.3 90 89 88 87 83 82 80 79 78 77 77 76",              "",  0},
    {"maxima too low and too high",     "cmax=75 bmax=88",           kTestScale,     "1", 1},
    {"words count as 0",                "aplusmax=word dminusmin=",
     "100 99 98 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 ", "1", 1},
};

struct Save {
    char const* name;
    char const* typed;            // into the scale of the tests
    std::vector<TestSession::Box> notices;
    char const* afterwards;
    bool isSaved;
} const kSaves[] = {
    {"a sound scale", "foundaproblem=", {}, "dminusmin=60", true},
    {"an earlier repair", "foundaproblem=1", {}, "dminusmin=60", false},
    {"a repair by this press", "amin=80", {{kScaleRepaired}}, "dminusmin=60", false},
    {"rounded it is not below 0", "dminusmin=-0.4", {}, "dminusmin=0", true},
    {"rounded it is below 0", "dminusmin=-0.5", {{kTooLow}}, "dminusmin=-1", false},
    {"the repair ends below 0", "aplusmin=10", {{kScaleRepaired}, {kTooLow}}, "dminusmin=-12", false},
};

constexpr char const* kRead = "100 96 95 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 61";
QByteArray const kScaleFile = QByteArray(kRead).replace(' ', '\n') + '\n';

struct Start {
    char const* name;
    QByteArray bytes; // of the Preferences
    std::vector<TestSession::Box> boxes = {};
    char const* scale = kRead;
    char const* mark = "";
} const kStarts[] = {
    {"CR LF", QByteArray(kScaleFile).replace("\n", "\r\n")},
    {"CR", QByteArray(kScaleFile).replace("\n", "\r")}, {"a byte order mark", "\xEF\xBB\xBF" + kScaleFile},
    {"no line end at the end", kScaleFile.chopped(1)}, {"more than 24 lines", kScaleFile + "12\n"},
    {"a CR LF that two reads share", "100" + QByteArray(4096 - 4, ' ') + "\r\n" + kScaleFile.mid(4)}, // 4096 a read
    {"a line of just 64 KiB", "100" + QByteArray(65536 - 3, ' ') + '\n' + kScaleFile.mid(4)},
    {"a longer one is ignored", QByteArray(65537, '1'), {}, kTestScale}, // which is the default one
    {"a top with an exponent is off", QByteArray(kScaleFile).replace("100", "1e2")},
    {"an unsound scale is repaired", QByteArray(kScaleFile).replace("93\n92", "93\n91"), {{kScaleRepaired}}, kRead, "1"},
    {"a file of anything is repaired", "1\0000\0\nwords\n\n\n50"_ba, {{kScaleRepaired}},
     "100 words -1 -2 -3 -4 -5 -6 -7 -8 -9 -10 -11 -12 -13 -14 -15 -16 -17 -18 -19 -20 -21 -22"},
};
// clang-format on

} // namespace

/// The grading scale: its repair, its default, the one of the settings and those under a name.
class Scale final : public QObject {
    Q_OBJECT

private slots:
    void init() { QFile::remove(PreferencesPath()); }

    void repairWorksFromTheTopDown_data() { AddRows(kRepairs); }
    void repairWorksFromTheTopDown()
    {
        QFETCH(RepairCase const*, row);
        TestSession session(std::vector(row->notices, TestSession::Box{kScaleRepaired}));
        session.setFields(row->typed);
        session.whileBoxIsUp = [&] { session.expectFields("foundaproblem="); }; // set after the notice
        session.form().gradingscaletest();
        session.expectScale(row->scale);
        session.expectFields("foundaproblem="_L1 + row->mark);
        session.whileBoxIsUp = [] {};
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

    void savedScalesAreReadBackUnchanged()
    {
        constexpr char const* kSaved = "aplusmax= 100 points aplusmin=95.5 amax=94.5 amin=93";
        QDir(QFileInfo(PreferencesPath()).path()).removeRecursively(); // the first save makes the folder
        {
            TestSession session;
            session.fileToChoose = session.pathOf("mine");
            session.play("total=40; missed=4 Return"); // a scale can be saved under entries
            session.setFields(kSaved);
            session.play("PushButton4; PushButton2; FileReset; PushButton3; FileOpen");
            session.expectFields(kSaved);
            session.expectBox(kScaleRepaired);
            WriteFile(session.fileToChoose, "no\nscale\n");
            session.play("FileOpen");
        }
        TestSession().expectFields(kSaved);
        QCOMPARE(ContentOf(PreferencesPath()),
                 QByteArray(kTestFile).replace("100\n98\n97", " 100 points\n95.5\n94.5"));
    }

    void scaleFilesOfAnyFormAreReadAndRepaired_data() { AddRows(kStarts); }
    void scaleFilesOfAnyFormAreReadAndRepaired()
    {
        QFETCH(Start const*, row);
        WriteFile(PreferencesPath(), row->bytes);
        TestSession const session(row->boxes);
        session.expectFields("foundaproblem="_L1 + row->mark);
        QCOMPARE(session.text("aplusmax").trimmed(), "100"_L1);
        session.setFields("aplusmax=100");
        session.expectScale(row->scale);
    }

    void savingRepairsRoundsAndMayRefuse_data() { AddRows(kSaves); }
    void savingRepairsRoundsAndMayRefuse()
    {
        QFETCH(Save const*, row);
        for (bool const isNamed : {false, true}) {
            TestSession session(row->notices);
            session.fileToChoose = session.pathOf("scale");
            session.whileBoxIsUp = [&] { // the rounded number is there when the notice comes
                session.expectFields(session.lastBox == kTooLow ? row->afterwards : "");
            };
            session.setFields(row->typed);
            session.play(isNamed ? "PushButton2" : "PushButton4");
            session.expectFields(row->afterwards + u" foundaproblem="_s);
            QCOMPARE(QFile::exists(isNamed ? session.fileToChoose : PreferencesPath()), row->isSaved);
        }
    }

    void fileDialogsStartInDocumentsOrHome()
    {
        if (kIsWindows || QDir(u"/Documents"_s).exists()) {
            QSKIP("the documents of this system are not the test's");
        }
        TestSession session;
        for (QString const& folder : {QDir::homePath(), QDir::homePath() + u"/Documents"_s}) {
            QVERIFY(QDir().mkpath(folder));
            session.play("PushButton2; FileOpen; total=40; missed=4 Return; FileExport; FileReset");
            QCOMPARE(session.dialogs.at(0).suggestedName, "AlternativeGradingScale"s);
            for (FileDialogRequest const& dialog : std::exchange(session.dialogs, {})) {
                QCOMPARE(QString::fromStdString(dialog.folder), folder);
            }
        }
    }

    void failedSavesGiveAReasonAndTheNextOneWorks()
    {
        TestSession session;
        QString const settings = QFileInfo(PreferencesPath()).path();
        QDir(settings).removeRecursively();
        WriteFile(settings, "");
        session.expectBox("The file \"Preferences\" could not be saved: its folder could not be made.");
        session.play("PushButton4");
        QVERIFY(QFile::remove(settings));
        session.fileToChoose = session.pathOf("no/such/folder/scale");
        session.expectBox("The file \"scale\" could not be saved: ");
        session.play("total=40; missed=4 Return; write dminusmin=59.6; PushButton2");
        QVERIFY(session.lastBox.size() > 50); // it says why
        session.expectFields("dminusmin=60 numstudents=1 foundaproblem=");
        session.fileToChoose = session.pathOf("scale");
        session.play("PushButton2");
        QCOMPARE(ContentOf(session.fileToChoose), kTestFile);
    }
};

GRADELOOM_TEST(Scale)
#include "test_scale.moc"
