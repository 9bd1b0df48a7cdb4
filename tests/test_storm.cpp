#include "tests/invariants.h"

#include <QDir>
#include <QPrinter>
#include <QRegularExpression>

#include <iostream>
#include <random>

namespace {

// clang-format off
// What is drawn from; one half of the acts in the main window grade. In an act %f is a field, %n a small number, %t a
// text, %o one that can't be typed, %k a key.
char const* const kActs = "total=2%n|total=2%n|%f=%t|%f=%t|key %k|key %k|key %k|key Return|focus %f; key %k|focus %f; key %k|"
    "paste %o|drop %f %o|edit %f %o|focus %f; commit %o|focus %f; compose %t|EditUndo|EditUndo|checkcorrect|correct=%n Return|"
    "%f|%f|ListBox1|PushButton1|PushButton2|PushButton3|PushButton4|FileOpen|FileExport|FilePrint|filepresent|About|EditClear|%e";
char const* const kActsElsewhere = "keys %n|keys %n|key %k|key %k|paste %o|filepresent|%e";
char const* const kEnds = "BevelButton1|key Ctrl+R|key Ctrl+W|key Ctrl+Q|key Esc";
char const* const kFields = "total missed correct percentage EditField1 aplusmax aplusmin amax amin aminusmin bmin cplusmax dmin "
    "dminusmax dminusmin";
char const* const kTexts = "0 -3 0.5 37.5 64.1 92.5 -0.4 1,000 7,5 1e3 1e309 100 x 99999999999999999999";
char const* const kOthers = "64.1 93 x\ny 12\n ٣٥ ９９．５";
char const* const kKeys = "Tab Shift+Tab Space Return Backspace Del Esc Left Shift+Left Shift+Down Down Home PgUp F5 Alt+X "
    "Ctrl+A Ctrl+X Ctrl+C Ctrl+V Ctrl+Z Ctrl+Z Ctrl+Y Ctrl+E Ctrl+O Ctrl+P Ctrl+T 1 9 . -";
char const* const kFiles = "scale percents report.pdf missing/scale";
// clang-format on

/// Random acts over all windows, with every box and dialog answered at random and files changed by others.
class Storm {
public:
    explicit Storm(unsigned seed) : random_(seed) { start(); }

    /// Carries the next act out and checks all that must hold after it.
    void act();
    [[nodiscard]] QStringList const& course() const { return course_; }
    [[nodiscard]] QString summary() const
    {
        return u"%1 entries, %2 boxes, %3 files written, %4 starts"_s.arg(entries_)
            .arg(boxes_)
            .arg(files_)
            .arg(starts_);
    }

private:
    /// The generator's numbers are the same on every platform, those of the library's distributions are not.
    int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    QString any(char const* texts, char16_t separator = u' ')
    {
        QStringList const all = QString::fromUtf8(texts).split(separator);
        return all[below(static_cast<int>(all.size()))];
    }
    QString anyText() { return below(4) != 0 ? QString::number(below(110)) : any(kTexts); }
    QString anyPath()
    {
        return below(5) == 0 ? PreferencesPath() : session_->pathOf(qPrintable(any(kFiles)));
    }
    QString anyAct(char const* acts);
    void start();
    void openDoors();
    void changeFile();

    std::mt19937 random_;
    std::unique_ptr<TestSession> session_;
    QStringList course_; ///< the last acts
    int entries_ = 0, boxes_ = 0, files_ = 0, starts_ = 0;
};

QString Storm::anyAct(char const* acts)
{
    return (acts == kActs && below(2) == 0 ? u"missed=%n Return"_s : any(acts, u'|'))
        .replace(u"%e"_s, any(kEnds, u'|'))
        .replace(u"%f"_s, any(kFields))
        .replace(u"%n"_s, QString::number(below(20)))
        .replace(u"%t"_s, anyText())
        .replace(u"%o"_s, any(kOthers))
        .replace(u"%k"_s, any(kKeys));
}

/// A new main window, as at the next start of the program, which may bring its first notices.
void Storm::start()
{
    ++starts_;
    session_.reset();
    StartAgain();
    openDoors();
    ::mainscreen();
    session_ = std::make_unique<TestSession>();
    openDoors();
}

void Storm::openDoors()
{
    PlatformDoors().messageBox = [this](auto const&) {
        ++boxes_;
        return below(8) == 0 ? kYes : kNo;
    };
    PlatformDoors().fileDialog = [this](auto const&) {
        return below(8) == 0 ? std::nullopt : std::optional(anyPath().toStdString());
    };
    PlatformDoors().printDialog = [this](QPrinter& printer, auto&) {
        printer.setOutputFileName(anyPath());
        return below(4) != 0;
    };
}

/// Another program removes a file, or puts a folder, a scale or anything else in its place.
void Storm::changeFile()
{
    QString const path = anyPath();
    QFile::remove(path);
    QDir().rmdir(path);
    int const kind = below(6);
    QByteArray content(kind == 1 ? below(70000) : 0, static_cast<char>(below(256)));
    for (int line = 0; kind > 1 && line < 20 + below(8); ++line) {
        content +=
            (kind < 4 ? anyText() : QString::number(100 - 4 * line)).toUtf8() + (kind == 2 ? "\r\n" : "\n");
    }
    QFile file(path);
    if (kind == 0) {
        QDir().mkdir(path);
    } else if (!content.isEmpty() && file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

void Storm::act()
{
    QStringList const folders = {session_->pathOf(""), QFileInfo(PreferencesPath()).path()};
    if (below(25) == 0) {
        changeFile();
    }
    if (QApplication::focusWidget() == nullptr || below(3) == 0) {
        session_->activate();
    }
    bool const isMain = QApplication::activeWindow() == session_->window();
    State const before = State::now(*session_, folders);
    course_ = course_.last(std::min<qsizetype>(course_.size(), 9)) +
              QStringList(anyAct(isMain ? kActs : kActsElsewhere));
    session_->play(course_.last());
    QCoreApplication::processEvents();
    if (session_->window() == nullptr) {
        start();
    }
    State const now = State::now(*session_, folders);
    entries_ += now.entries() > before.entries() ? 1 : 0;
    files_ += now.files != before.files ? 1 : 0;
    CheckState(now);
    CheckStep(before, now);
    if (isMain && course_.last().startsWith(u"missed="_s)) {
        CheckGrading(before, now);
    }
}

} // namespace

/// The storm as one test; its length and its seed come from the command line.
class StormTest final : public QObject {
    Q_OBJECT

public:
    QString program;
    int acts = 2000;
    unsigned seed = 1;

private slots:
    void afterEachActAllHoldsThatMust()
    {
        QString const replay = u"%1 %2 %3"_s.arg(program).arg(acts).arg(seed);
        std::cout << qPrintable(replay) << '\n' << std::flush; // at once: a crash leaves no other trace
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        Storm storm(seed);
        for (int act = 0; act < acts && !QTest::currentTestFailed(); ++act) {
            storm.act();
        }
        std::cout << qPrintable(storm.summary()) << '\n';
        QVERIFY2(!QTest::currentTestFailed(),
                 qPrintable(u"after: %1\nagain: %2"_s.arg(storm.course().join(u"\n  "), replay)));
    }
};

/// test_storm [ACTS [SEED]]: another number of acts draws a new seed, if none is stated.
int main(int count, char** arguments)
{
    StormTest test;
    test.program = QString::fromLocal8Bit(arguments[0]);
    if (count > 1) {
        qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // milliseconds: a long storm does not hang
        test.acts = QString::fromLocal8Bit(arguments[1]).toInt();
        test.seed = count > 2 ? QString::fromLocal8Bit(arguments[2]).toUInt() : std::random_device()();
    }
    return RunTests(test, 1, arguments);
}

#include "test_storm.moc"
