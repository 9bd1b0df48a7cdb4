#include "tests/harness.h"

#include "platform/files.h"
#include "platform/qt/system/native.h"

#include <QDir>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::string_literals;

namespace {

int callsUntilFault = 0; // 0: none fails
char const* faultyCall = "";
int faultNumber = EIO;
bool refusesGroups = false;

bool Fails(char const* call)
{
    bool const isDue = callsUntilFault == 1;
    callsUntilFault -= callsUntilFault > 0 ? 1 : 0;
    if (isDue) {
        faultyCall = call;
        errno = faultNumber;
    }
    return isDue;
}

} // namespace

// clang-format off
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
CALL(int, fchmod, (int fd, mode_t mode), (fd, mode))
CALL(int, fchown, (int fd, uid_t user, gid_t group), (refusesGroups ? -1 : fd, user, group))
CALL(int, linkat, (int a, char const* from, int b, char const* to, int flags), (a, from, b, to, flags))
CALL(int, rename, (char const* from, char const* to), (from, to))
CALL(int, renameat2, (int a, char const* from, int b, char const* to, unsigned flags), (a, from, b, to, flags))
// clang-format on

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

/// Saves while the call of this number fails, and returns that call; nothing if the save makes fewer calls.
QString FailCall(int number, bool existed)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(u"scale"_s);
    if (existed) {
        WriteFile(path, "old\n");
    }
    callsUntilFault = number;
    QString const reason = Save(path, "new\n");
    bool const wasReached = std::exchange(callsUntilFault, 0) == 0;
    qsizetype const files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System).size();
    bool const isAsBefore = ContentOf(path) == (existed ? "old\n" : "") && files == (existed ? 1 : 0);
    bool const isRight = reason.isEmpty() ? ContentOf(path) == "new\n" : isAsBefore;
    bool const isFlush = wasReached && faultyCall == "fsync"s;
    // None is needed there, or it is tried once more.
    bool const isHarmless = faultNumber == EINVAL || faultNumber == EINTR;
    bool const isFlushHeeded = !isFlush || reason.isEmpty() == isHarmless;
    bool const savesAgain = Save(path, "next\n").isEmpty() && ContentOf(path) == "next\n";
    bool const saysWhy = !reason.contains(u"Unknown error"_s);
    if (!isRight || !saysWhy || !isFlushHeeded || !savesAgain) {
        QTest::qFail(qPrintable(u"call %1: %2"_s.arg(number).arg(reason)), __FILE__, __LINE__);
    }
    return wasReached ? QString::fromLatin1(faultyCall) : QString();
}

/// What can be chosen in the dialog and can't be read; the paths are in the session's folder.
struct NoFile {
    char const* name;
    void (*make)(QString const& path);
    char const* reason = ""; // ours; the system has its own
} const kNoFiles[] = {
    {"missing", [](QString const&) {}},
    {"pipe", [](QString const& path) { mkfifo(QFile::encodeName(path), 0600); }, "it is not a plain file."},
    {"300 MB", [](QString const& path) { WriteFile(path, ""), QFile::resize(path, 300'000'000); },
     "it holds a line that is too long."},
    {"a fault of a read", [](QString const& path) { WriteFile(path, "1"), callsUntilFault = 2; }},
};

} // namespace

/// Every call that a save makes of the system fails in turn; files are no scale at all.
class FileFaults final : public QObject {
    Q_OBJECT

private slots:
    void anyFailingCallKeepsTheOldFileAndGivesAReason()
    {
        for (int const fault : {EIO, ENOSPC, EACCES, EINTR, EINVAL}) {
            faultNumber = fault;
            for (bool const existed : {false, true}) {
                QStringList calls;
                do {
                    calls += FailCall(static_cast<int>(calls.size()) + 1, existed);
                } while (!calls.last().isEmpty());
                for (char const* const call : {"open64", "write", "fsync"}) {
                    QVERIFY2(calls.contains(QLatin1String(call)), call);
                }
            }
        }
    }

    void savingKeepsLinksAndPermissions()
    {
        QTemporaryDir const folder;
        QString const path = folder.filePath(u"scale"_s);
        QString const link = folder.filePath(u"link"_s);
        WriteFile(path, "old\n");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner) && QFile::link(path, link));
        FolderItem const parent = GetFolderItem(folder.path().toStdString(), 0).value_or(FolderItem(""));
        QCOMPARE(parent.Child("link", true).Path(), path.toStdString());
        QCOMPARE(parent.Child("link", false).Path(), link.toStdString());
        QCOMPARE(Save(link, "new\n"), QString());
        QVERIFY(QFileInfo(link).isSymLink() && ContentOf(path) == "new\n");
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void savingKeepsTheGroupOrGivesTheNewOneNoMoreThanOthersHad()
    {
        QTemporaryDir const folder;
        QString const path = folder.filePath(u"scale"_s);
        QByteArray const name = QFile::encodeName(path);
        WriteFile(path, "old\n");
        if (chown(name, getuid(), 5002) != 0 || chmod(name, 0664) != 0) {
            QSKIP("only root may give a file to a group that it is not in");
        }
        for (auto const& [isRefused, group, mode] :
             {std::tuple(false, 5002U, 0664U), {true, getgid(), 0644U}}) {
            struct stat now = {};
            refusesGroups = isRefused;
            QVERIFY(Save(path, "new\n").isEmpty() && stat(name, &now) == 0);
            QCOMPARE(std::pair(now.st_gid, now.st_mode & 0777), std::pair(group, mode));
        }
        refusesGroups = false;
    }

    void savingRefusesPipesAndNamesThatAreTooLong()
    {
        QTemporaryDir const folder;
        // 255 bytes is the longest name of a file; each is saved twice, since only then a temporary is renamed
        for (int const length : {248, 248, 249, 249, 255, 255, 256}) {
            QString const path = folder.filePath(QString(length, u'n'));
            QString const reason = Save(path, "text\n");
            QVERIFY(reason.isEmpty() ? ContentOf(path) == "text\n"
                                     : length > 248 && reason == "its name is too long"_L1);
        }
        QVERIFY(Save(folder.filePath(u"no/"_s + QString(248, u'n')), "text\n") != "its name is too long"_L1);
        QString const pipe = folder.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
        QCOMPARE(Save(pipe, "text\n"), "it is not a plain file"_L1);
    }

    void browserInheritsNoFilesAndIgnoredSignalsStayIgnored()
    {
        auto const inherited = [] {
            int count = 0;
            for (int file = 0; file < 1000; ++file) {
                int const flags = fcntl(file, F_GETFD);
                count += flags >= 0 && (flags & FD_CLOEXEC) == 0 ? 1 : 0;
            }
            return count;
        };
        int const before = inherited();
        QVERIFY(std::signal(SIGHUP, SIG_IGN) != SIG_ERR); // as nohup starts a program
        HandleSignals([] {});
        QCOMPARE(inherited(), before);
        QVERIFY(std::signal(SIGHUP, SIG_DFL) == SIG_IGN);
    }

    void unreadableFilesAreReportedAndChangeNothing_data() { AddRows(kNoFiles); }
    void unreadableFilesAreReportedAndChangeNothing()
    {
        QFETCH(NoFile const*, row);
        TestSession session;
        session.fileToChoose = session.pathOf(row->name);
        session.setFields("amin=80"); // which a repair would find
        session.expectBox("The file \""s + row->name + "\" could not be opened: " + row->reason);
        row->make(session.fileToChoose);
        session.form()._FileOpen_Action(); // neither waits for a pipe nor reads 300 MB
        QVERIFY(!session.lastBox.ends_with(": ."));
        session.expectScale("100 98 97 80");
    }
};

GRADELOOM_TEST(FileFaults)
#include "test_file_faults.moc"
