#include "tests/harness.h"

#include "frame/file_notices.h"
#include "platform/files.h"

#include <QDir>

using namespace std::string_literals;

namespace {

constexpr char const* kTooLow =
    "In order to save this grading scale, the minimum for a D- must be greater than or "
    "equal to zero.";
QByteArray const kDefaultFile = QByteArray(kDefaultScale).replace(' ', '\n') + '\n';

// clang-format off
struct Save {
    char const* name;
    char const* typed;            // into the default scale
    std::vector<TestSession::Box> notices;
    char const* afterwards;
    bool isSaved;
} const kSaves[] = {
    {"a sound scale", "foundaproblem=", {}, "dminusmin=60", true},
    {"an earlier repair", "foundaproblem=1", {}, "dminusmin=60", false},
    {"a repair by this press", "amin=80", {{kScaleRepaired}}, "dminusmin=60", false},
    {"a fraction is rounded", "dminusmin=59.6", {}, "dminusmin=60", true},
    {"an exponent counts", "dminusmin=6e1", {}, "dminusmin=60", true},
    {"rounded it is not below 0", "dminusmin=-0.4", {}, "dminusmin=0", true},
    {"rounded it is below 0", "dminusmin=-0.5", {{kTooLow}}, "dminusmin=-1", false},
    {"the repair ends below 0", "aplusmin=10", {{kScaleRepaired}, {kTooLow}}, "dminusmin=-12", false},
};

QByteArray const kScaleFile = QByteArray(kDefaultFile).replace("98\n97", "96\n95").replace("62\n60", "62\n61");

struct Form {
    char const* name;
    QByteArray bytes;
} const kForms[] = {
    {"LF", kScaleFile}, {"CR LF", QByteArray(kScaleFile).replace("\n", "\r\n")},
    {"CR", QByteArray(kScaleFile).replace("\n", "\r")}, {"a byte order mark", "\xEF\xBB\xBF" + kScaleFile},
    {"no line end at the end", kScaleFile.chopped(1)}, {"more than 24 lines", kScaleFile + "12\n"},
    {"a long rest", kScaleFile + QByteArray(1'000'000, '\n')},
    {"a CR LF that two reads share", "100" + QByteArray(4096 - 4, ' ') + "\r\n" + kScaleFile.mid(4)}, // 4096 a read
    {"a line of just 64 KiB", "100" + QByteArray(65536 - 3, ' ') + '\n' + kScaleFile.mid(4)},
};

struct Start {
    char const* name;
    QByteArray bytes; // of the Preferences; the scale is the default one afterwards
    std::vector<TestSession::Box> boxes;
    char const* mark;
} const kStarts[] = {
    {"a top that is off is set in silence", QByteArray(kDefaultFile).replace("100", "95"), {}, ""},
    {"an unsound scale is repaired", QByteArray(kDefaultFile).replace("93\n92", "93\n91"), {{kScaleRepaired}}, "1"},
    {"a file that can't be read is ignored", QByteArray(65537, '1'), {}, ""},
};
// clang-format on

} // namespace

/// The standing scale, scales under a name, and the checks that both saves make.
class ScaleFiles final : public QObject {
    Q_OBJECT

private slots:
    void init() { QFile::remove(PreferencesPath()); }

    void aSavedScaleIsThereAtTheNextStart()
    {
        QDir(QFileInfo(PreferencesPath()).path()).removeRecursively(); // the first save makes the folder
        TestSession().play("write aplusmin=95.5 amax=94.5; PushButton4");
        QCOMPARE(ContentOf(PreferencesPath()), QByteArray(kDefaultFile).replace("98\n97", "95.5\n94.5"));
        TestSession const session;
        session.expectScale("100 95.5 94.5");
        session.expectFields("foundaproblem=");
    }

    void whatIsWrongAtTheStartIsSetRepairedOrIgnored_data() { AddRows(kStarts); }
    void whatIsWrongAtTheStartIsSetRepairedOrIgnored()
    {
        QFETCH(Start const*, row);
        WriteFile(PreferencesPath(), row->bytes);
        TestSession const session(row->boxes);
        session.expectScale(kDefaultScale);
        session.expectFields("foundaproblem="_L1 + row->mark);
    }

    void aSaveRepairsRoundsAndMayRefuse_data() { AddRows(kSaves); }
    void aSaveRepairsRoundsAndMayRefuse()
    {
        QFETCH(Save const*, row);
        TestSession session;
        session.fileToChoose = session.pathOf("scale");
        for (char const* const button : {"PushButton4", "PushButton2"}) {
            session.click("PushButton3");
            session.setFields(row->typed);
            for (TestSession::Box const& notice : row->notices) {
                session.expectBox(notice.text);
            }
            session.whileBoxIsUp = [&] { // the rounded number is there when the notice comes
                session.expectFields(session.lastBox == kTooLow ? row->afterwards : "");
            };
            session.click(button);
            QVERIFY(session.allBoxesSeen());
            session.expectFields(row->afterwards);
            session.expectFields("foundaproblem=");
        }
        QCOMPARE(QFile::exists(PreferencesPath()), row->isSaved);
        QCOMPARE(QFile::exists(session.fileToChoose), row->isSaved);
    }

    void aNamedScaleComesBackAsItWasWritten()
    {
        TestSession session;
        session.enterScores("40", {"4"}); // a scale can be saved under entries
        session.setFields("aplusmin=92.5 amax=91.5 amin=91 aminusmax=90");
        session.form().aplusmax().Text(" 100 points");
        session.fileToChoose = session.pathOf("mine");
        session.play("PushButton2; FileReset; PushButton3; FileOpen");
        session.expectFields(
            "aplusmax= 100 points aplusmin=92.5 amax=91.5 amin=91 aminusmax=90 aminusmin=90");
    }

    void theDialogsAskForWhatTheyAreFor()
    {
        TestSession const session;
        session.play("PushButton2; FileOpen"); // both cancelled
        QCOMPARE(session.dialogs.size(), std::size_t(2));
        FileDialogRequest const& save = session.dialogs[0];
        FileDialogRequest const& open = session.dialogs[1];
        QVERIFY(save.saving && save.title == "Save your file" && save.prompt == "Enter a filename");
        QVERIFY(save.suggestedName == "AlternativeGradingScale" && !save.folder.empty());
        QVERIFY(!open.saving && open.title == "Select a Grading Scale" && QDir(save.folder.c_str()).exists());
        QCOMPARE(open.folder, save.folder);
    }

    void everyFormOfAScaleFileIsRead_data() { AddRows(kForms); }
    void everyFormOfAScaleFileIsRead()
    {
        QFETCH(Form const*, row);
        TestSession session;
        session.fileToChoose = session.pathOf("scale");
        WriteFile(session.fileToChoose, row->bytes);
        session.chooseCommand("FileOpen");
        QCOMPARE(session.text("aplusmax").trimmed(), "100"_L1);
        session.setFields("aplusmax=100");
        session.expectScale("100 96 95 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 61");
    }

    void onlyTheFirstLineLosesItsByteOrderMark()
    {
        QTemporaryDir const folder;
        QByteArray const mark = "\xEF\xBB\xBF";
        WriteFile(folder.filePath("marks"), mark + "98\n" + mark + mark + "97\n93\0\xFF"_ba);
        std::string fault;
        auto const stream = FolderItem(folder.filePath("marks").toStdString()).OpenAsTextFile(fault);
        QCOMPARE(stream->ReadLine(), "98"s);
        QVERIFY(stream->ReadLine() != "97");
        QCOMPARE(stream->ReadLine(), "93\0\xEF\xBF\xBD"s);              // an invalid byte is replaced
        QVERIFY(stream->ReadLine().empty() && stream->Fault().empty()); // past the end
    }

    void aFileOfAnythingIsRepairedAndNotSaved()
    {
        TestSession session;
        session.fileToChoose = session.pathOf("scale");
        for (QByteArray const& bytes : {""_ba, "a\nfew\nwords\n"_ba, "1\0000\0\n\0"_ba}) {
            WriteFile(session.fileToChoose, bytes);
            session.expectBox(kScaleRepaired);
            session.chooseCommand("FileOpen");
            session.expectFields("aplusmax=100 foundaproblem=");
            session.expectBox(kTooLow);
            session.click("PushButton4");
            QVERIFY(session.allBoxesSeen() && !QFile::exists(PreferencesPath()));
        }
    }

    void aFailedSaveIsReportedAndTheNextOneWorks()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        session.setFields("dminusmin=59.6");
        session.fileToChoose = session.pathOf("no/such/folder/scale");
        session.expectBox("The file \"scale\" could not be saved: ");
        session.click("PushButton2");
        QVERIFY(session.lastBox.size() > 50); // it says why
        session.expectFields("dminusmin=60 numstudents=1 foundaproblem=");
        session.fileToChoose = session.pathOf("scale");
        session.click("PushButton2");
        QCOMPARE(ContentOf(session.fileToChoose), kDefaultFile);
    }

    void aFolderOrAFileInThePlaceOfThePreferencesIsReported()
    {
        TestSession session({{"The file \"Preferences\" could not be saved: it is not a plain file."}});
        QString const folder = QFileInfo(PreferencesPath()).path();
        QVERIFY(QDir().mkpath(PreferencesPath()));
        session.click("PushButton4");
        QVERIFY(QDir(folder).removeRecursively());
        WriteFile(folder, "");
        session.expectBox("The file \"Preferences\" could not be saved: its folder could not be made.");
        session.click("PushButton4");
        QVERIFY(QFile::remove(folder) && QDir().mkpath(folder));
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
