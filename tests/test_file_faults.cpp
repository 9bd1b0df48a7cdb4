#include "tests/harness.h"

#include "platform/qt/save_file.h"
#include "platform/qt/text.h"
#include "platform/text_field.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

// Faults of files: every call that a save makes of the system fails in turn; a disk that is full; files that
// are no scale at all.

namespace {

int callsUntilFault = 0; // 0: none fails
int faultNumber = EIO;
bool unlinkFailed = false;

bool Fails()
{
    if (callsUntilFault == 0 || --callsUntilFault > 0) {
        return false;
    }
    errno = faultNumber;
    return true;
}

template <class Function>
Function* Real(char const* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// In this program the system's functions stand behind these.
#define CALL(name, parameters, arguments, types, result)                                                     \
    extern "C" result name parameters                                                                        \
    {                                                                                                        \
        static auto* const real = Real<result types>(#name);                                                 \
        return Fails() ? -1 : real arguments;                                                                \
    }
CALL(write, (int file, void const* bytes, size_t count), (file, bytes, count), (int, void const*, size_t),
     ssize_t)
CALL(fsync, (int file), (file), (int), int)
CALL(fdatasync, (int file), (file), (int), int)
CALL(fchmod, (int file, mode_t mode), (file, mode), (int, mode_t), int)
CALL(linkat, (int a, char const* from, int b, char const* to, int flags), (a, from, b, to, flags),
     (int, char const*, int, char const*, int), int)
CALL(rename, (char const* from, char const* to), (from, to), (char const*, char const*), int)
CALL(renameat2, (int a, char const* from, int b, char const* to, unsigned flags), (a, from, b, to, flags),
     (int, char const*, int, char const*, unsigned), int)

extern "C" int open64(char const* path, int flags, ...)
{
    static auto* const real = Real<int(char const*, int, ...)>("open64");
    va_list more;
    va_start(more, flags);
    mode_t const mode = va_arg(more, mode_t);
    va_end(more);
    return Fails() ? -1 : real(path, flags, mode);
}

extern "C" int unlink(char const* path)
{
    static auto* const real = Real<int(char const*)>("unlink");
    unlinkFailed = Fails();
    return unlinkFailed ? -1 : real(path);
}

namespace {

bool SaysWhy(QString const& reason)
{
    return !reason.isEmpty() && !reason.contains(QStringLiteral("Unknown error"));
}

QStringList Names(QString const& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class TestFileFaults : public QObject {
    Q_OBJECT

private slots:
    void aFaultOfAnyCallKeepsTheOldFileAndSaysWhy()
    {
        for (int const fault : {EIO, ENOSPC, EACCES}) {
            faultNumber = fault;
            failEachCallOnce(false);
            failEachCallOnce(true);
        }
    }

    void aFullDiskKeepsTheOldFile()
    {
        QTemporaryDir folder;
        QByteArray const mountPoint = QFile::encodeName(folder.path());
        if (mount("none", mountPoint.constData(), "tmpfs", 0, "size=64k") != 0) {
            QSKIP("needs the right to mount a small file system");
        }
        QString const path = folder.filePath(QStringLiteral("scale"));
        QString const savedOnce = SaveWhole(path, "old\n");
        QString const tooLarge = SaveWhole(path, QByteArray(100'000, 'x'));
        QByteArray const kept = Content(path);
        QFile filler(folder.filePath(QStringLiteral("filler")));
        bool const opened = filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        while (filler.write(QByteArray(4096, 'x')) == 4096) {
        }
        QString const small = SaveWhole(path, "new\n");
        QByteArray const keptAgain = Content(path);
        filler.remove();
        QString const afterwards = SaveWhole(path, "next\n");
        QStringList const names = Names(folder.path());
        umount2(mountPoint.constData(), MNT_DETACH);
        QVERIFY(opened && savedOnce.isEmpty() && afterwards.isEmpty());
        QVERIFY2(SaysWhy(tooLarge) && SaysWhy(small), qPrintable(tooLarge + u'|' + small));
        QCOMPARE(kept + keptAgain, QByteArray("old\nold\n"));
        QCOMPARE(names, QStringList("scale"));
    }

    void linksPermissionsAndLongNamesAreHandled()
    {
        QTemporaryDir folder;
        QString const path = folder.filePath(QStringLiteral("scale"));
        QString const link = folder.filePath(QStringLiteral("link"));
        QCOMPARE(SaveWhole(path, "old\n"), QString());
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner) && QFile::link(path, link));
        QCOMPARE(SaveWhole(link, "new\n"), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(Content(path), QByteArray("new\n"));
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        for (int const length : {248, 249, 255, 256}) { // 255 bytes is the longest name that a file can have
            QString const longName = folder.filePath(QString(length, u'n'));
            for (int repeat = 0; repeat < 2; ++repeat) {
                QString const reason = SaveWhole(longName, "text\n");
                QVERIFY(reason.isEmpty() ? Content(longName) == "text\n" : SaysWhy(reason));
                QVERIFY(length > 248 || reason.isEmpty());
            }
        }
        QVERIFY(SaysWhy(SaveWhole(folder.path(), "text\n")));
        QVERIFY(SaysWhy(SaveWhole(folder.filePath(QStringLiteral("no/such/folder")), "text\n")));
    }

    void aFileThatIsNoScaleIsToldAtOnceAndChangesNothing()
    {
        QTemporaryDir folder;
        auto const in = [&](char const* name) { return folder.filePath(QLatin1String(name)); };
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
        QCOMPARE(mkfifo(QFile::encodeName(in("pipe")).constData(), 0600), 0);
        QCOMPARE(SaveWhole(in("65537"), QByteArray(65537, '1')), QString());
        QCOMPARE(SaveWhole(in("65536"), QByteArray(65536, '1')), QString());
        QFile huge(in("huge"));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(300'000'000));
        Desk desk;
        QString const before = desk.show("aplusmax amin dminusmin");
        for (QString const& path : {in("missing"), in("folder"), in("pipe"), in("65537"), in("huge"),
                                    QStringLiteral("/dev/zero"), QStringLiteral("/dev/null")}) {
            desk.chosen = FromQt(path);
            desk.expect("The file \"" + FromQt(QFileInfo(path).fileName()) + "\" could not be opened: ");
            QElapsedTimer timer;
            timer.start();
            desk.choose("FileOpen");
            QVERIFY(timer.elapsed() < 2000); // it does not wait for a pipe or read a device to its end
            QCOMPARE(desk.show("aplusmax amin dminusmin"), before);
        }
        desk.chosen = FromQt(in("65536"));
        desk.expect("An attempt was made to fix the grading scale.");
        desk.choose("FileOpen");
        QCOMPARE(desk.show("aplusmax"), QStringLiteral("100"));
    }

private:
    static void failEachCallOnce(bool existed)
    {
        int failures = 0;
        for (int n = 1;; ++n) {
            QTemporaryDir folder;
            QString const path = folder.filePath(QStringLiteral("scale"));
            if (existed) {
                QCOMPARE(SaveWhole(path, "old\n"), QString());
            }
            unlinkFailed = false;
            callsUntilFault = n;
            QString const reason = SaveWhole(path, "new\n");
            bool const wasReached = callsUntilFault == 0;
            callsUntilFault = 0;
            if (!wasReached) {
                break;
            }
            if (reason.isEmpty()) {
                QCOMPARE(Content(path), QByteArray("new\n"));
            } else {
                ++failures;
                QVERIFY2(SaysWhy(reason), qPrintable(reason));
                QCOMPARE(existed ? Content(path) : QByteArray("old\n"), QByteArray("old\n"));
                QVERIFY(unlinkFailed ||
                        Names(folder.path()) == (existed ? QStringList("scale") : QStringList()));
            }
            QCOMPARE(SaveWhole(path, "next\n"), QString());
            QCOMPARE(Content(path), QByteArray("next\n"));
        }
        QVERIFY(failures >= 3); // to open, to write, to flush
    }
};

GRADELOOM_TEST(TestFileFaults)
#include "test_file_faults.moc"
