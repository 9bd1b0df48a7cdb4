#include "tests/harness.h"

#include "platform/files.h"

#include <QDir>
#include <QElapsedTimer>

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace std::string_literals;

namespace {

int callsUntilFault = 0; // 0: none fails
char const* faultyCall = "";
int faultNumber = EIO;

bool Fails(char const* call)
{
    if (callsUntilFault == 0 || --callsUntilFault > 0) {
        return false;
    }
    faultyCall = call;
    errno = faultNumber;
    return true;
}

} // namespace

// In this program the system's functions are called through these.
#define REAL(name) static auto* const real = reinterpret_cast<decltype(&(name))>(dlsym(RTLD_NEXT, #name))
#define CALL(type, name, parameters, arguments)                                                              \
    extern "C" type name parameters                                                                          \
    {                                                                                                        \
        REAL(name);                                                                                          \
        return Fails(#name) ? -1 : real arguments;                                                           \
    }
CALL(ssize_t, read, (int fd, void* bytes, size_t count), (fd, bytes, count))
CALL(ssize_t, write, (int fd, void const* bytes, size_t count), (fd, bytes, count))
CALL(int, fsync, (int fd), (fd))
CALL(int, fdatasync, (int fd), (fd))
CALL(int, fchmod, (int fd, mode_t mode), (fd, mode))
CALL(int, linkat, (int a, char const* from, int b, char const* to, int flags), (a, from, b, to, flags))
CALL(int, rename, (char const* from, char const* to), (from, to))
CALL(int, renameat2, (int a, char const* from, int b, char const* to, unsigned flags),
     (a, from, b, to, flags))

extern "C" int open64(char const* path, int flags, ...) // NOLINT(cert-dcl50-cpp): the system's own form
{
    REAL(open64);
    va_list more;
    va_start(more, flags);
    mode_t const mode = va_arg(more, mode_t);
    va_end(more);
    return Fails("open64") ? -1 : real(path, flags, mode);
}

namespace {

/// Writes a text that ends with a line end. Returns why that failed, or nothing.
QString Save(QString const& path, QByteArray const& text)
{
    TextOutputStream stream = FolderItem(path.toStdString()).CreateTextFile();
    stream.WriteLine(text.chopped(1).toStdString());
    return QString::fromStdString(stream.Close());
}

bool SaysWhy(QString const& reason)
{
    return !reason.isEmpty() && !reason.contains(u"Unknown error"_s);
}

QStringList Names(QString const& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// Saves while the call of this number fails. False if the save makes fewer calls.
bool FailCall(int number, bool existed, QStringList& failed)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(u"scale"_s);
    bool const isReady = !existed || Save(path, "old\n").isEmpty();
    callsUntilFault = number;
    QString const reason = Save(path, "new\n");
    bool const wasReached = callsUntilFault == 0;
    callsUntilFault = 0;
    bool const isAsBefore =
        ContentOf(path) == (existed ? "old\n" : "") && Names(folder.path()).size() == (existed ? 1 : 0);
    bool const isRight = reason.isEmpty() ? ContentOf(path) == "new\n" : isAsBefore && SaysWhy(reason);
    bool const savesAgain = Save(path, "next\n").isEmpty() && ContentOf(path) == "next\n";
    if (!isReady || !isRight || !savesAgain) {
        QTest::qFail(qPrintable(u"call %1: %2"_s.arg(number).arg(reason)), __FILE__, __LINE__);
    }
    failed += reason.isEmpty() ? QString() : QString::fromLatin1(faultyCall);
    return wasReached;
}

/// What can be chosen in the dialog and is no scale file; the paths are in the session's folder.
struct NoFile {
    char const* name;
    void (*make)(QString const& path);
} const kNoFiles[] = {
    {"missing",          [](QString const&) {}                                                             },
    {"folder",           [](QString const& path) { QDir().mkdir(path); }                                   },
    {"pipe",             [](QString const& path) { mkfifo(QFile::encodeName(path), 0600); }                },
    {"endless device",   [](QString const& path) { QFile::link(u"/dev/zero"_s, path); }                    },
    {"empty device",     [](QString const& path) { QFile::link(u"/dev/null"_s, path); }                    },
    {"65537 characters", [](QString const& path) { WriteFile(path, QByteArray(65537, '1')); }              },
    {"300 MB",           [](QString const& path) { WriteFile(path, ""), QFile::resize(path, 300'000'000); }},
};

} // namespace

/// Every call that a save makes of the system fails in turn; a disk is full; files are no scale at all.
class FileFaults final : public QObject {
    Q_OBJECT

private slots:
    void aFaultOfAnyCallKeepsTheOldFileAndSaysWhy()
    {
        for (int const fault : {EIO, ENOSPC, EACCES}) {
            faultNumber = fault;
            for (bool const existed : {false, true}) {
                QStringList failed;
                for (int number = 1; FailCall(number, existed, failed); ++number) {
                }
                QVERIFY(failed.contains("open64") && failed.contains("write") && failed.contains("fsync"));
            }
        }
    }

    void aFullDiskKeepsTheOldFile()
    {
        QTemporaryDir const folder;
        QByteArray const mountPoint = QFile::encodeName(folder.path());
        if (mount("none", mountPoint.constData(), "tmpfs", 0, "size=64k") != 0) {
            QSKIP("needs the right to mount a small file system");
        }
        QString const path = folder.filePath(u"scale"_s);
        QString const first = Save(path, "old\n");
        QString const tooLarge = Save(path, QByteArray(100'000, 'x'));
        QFile filler(folder.filePath(u"filler"_s));
        bool const opened = filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        while (filler.write(QByteArray(4096, 'x')) == 4096) {
        }
        QString const small = Save(path, "new\n");
        QByteArray const kept = ContentOf(path);
        filler.remove();
        QString const last = Save(path, "next\n");
        bool const isTidy = Names(folder.path()) == QStringList("scale");
        umount2(mountPoint.constData(), MNT_DETACH);
        QVERIFY(opened && first.isEmpty() && last.isEmpty() && kept == "old\n" && isTidy);
        QVERIFY2(SaysWhy(tooLarge) && SaysWhy(small), qPrintable(tooLarge + u'|' + small));
    }

    void aLinkStaysALinkAndPermissionsStay()
    {
        QTemporaryDir const folder;
        QString const path = folder.filePath(u"scale"_s), link = folder.filePath(u"link"_s);
        QCOMPARE(Save(path, "old\n"), QString());
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner) && QFile::link(path, link));
        QCOMPARE(Save(link, "new\n"), QString());
        QVERIFY(QFileInfo(link).isSymLink() && ContentOf(path) == "new\n");
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void aNameTooLongForATemporaryIsRefusedEachTime()
    {
        QTemporaryDir const folder;
        for (int const length : {248, 248, 249, 255, 256}) { // 255 bytes is the longest name of a file
            QString const path = folder.filePath(QString(length, u'n'));
            QString const reason = Save(path, "text\n");
            QVERIFY(reason.isEmpty() ? ContentOf(path) == "text\n"
                                     : length > 248 && reason.contains("too long"));
        }
    }

    void aFolderAPipeAndADeviceAreNotReplaced()
    {
        QTemporaryDir const folder;
        QString const pipe = folder.filePath("pipe"), device = folder.filePath("device");
        QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
        static_cast<void>(mknod(QFile::encodeName(device), S_IFCHR | 0600, makedev(1, 3))); // root alone can
        for (QString const& path : {folder.path(), pipe, device}) {
            if (QFileInfo::exists(path)) {
                QCOMPARE(Save(path, "text\n"), "it is not a plain file"_L1);
                QVERIFY(!QFileInfo(path).isFile());
            }
        }
    }

    void whatIsNoScaleFileIsReportedAtOnceAndChangesNothing_data() { AddRows(kNoFiles); }
    void whatIsNoScaleFileIsReportedAtOnceAndChangesNothing()
    {
        QFETCH(NoFile const*, row);
        TestSession session;
        session.fileToChoose = session.pathOf(row->name);
        row->make(session.fileToChoose);
        session.setFields("amin=80"); // which a repair would find
        session.expectBox("The file \""s + row->name + "\" could not be opened: ");
        QElapsedTimer timer;
        timer.start();
        session.chooseCommand("FileOpen");
        QVERIFY(timer.elapsed() < 2000); // it does not wait for a pipe or read a device to its end
        QVERIFY(!session.lastBox.ends_with(": ."));
        session.expectScale("100 98 97 80");
    }

    void aFaultOfAnyCallOfAReadIsReportedAndChangesNothing()
    {
        faultNumber = EIO;
        QStringList failed;
        for (int number = 1; callsUntilFault == 0; ++number) {
            TestSession session;
            session.fileToChoose = session.pathOf("scale");
            WriteFile(session.fileToChoose, QByteArray(kDefaultScale).replace(' ', '\n'));
            session.setFields("amin=80");
            std::string told;
            PlatformDoors().messageBox = [&](MessageBoxRequest const& box) {
                told = box.text;
                return kNo;
            };
            callsUntilFault = number;
            session.chooseCommand("FileOpen");
            if (told.empty()) { // the fault was not reached, or did no harm
                session.expectScale(kDefaultScale);
            } else {
                session.expectScale("100 98 97 80");
                failed += faultyCall;
            }
        }
        callsUntilFault = 0;
        QVERIFY2(failed.contains("open64") && failed.contains("read"), qPrintable(failed.join(u' ')));
    }
};

GRADELOOM_TEST(FileFaults)
#include "test_file_faults.moc"
