#include "frame/conversions.h"
#include "tests/harness.h"

#include <QDir>
#include <QMap>
#include <QPrinter>
#include <QRegularExpression>

#include <cmath>
#include <iostream>
#include <random>

namespace {

/// What the program holds at one moment.
struct State {
    QMap<QString, QString> fields;
    QList<QStringList> lists; ///< the rows of the five lists of entries
    QMap<QString, QByteArray> files;

    [[nodiscard]] static State now(TestSession const& session, QStringList const& folders);
    [[nodiscard]] qsizetype entries() const { return lists.first().size(); }
};

QStringList const kScale = QString::fromLatin1(kScaleFieldNames).split(u' ');
QStringList const kLetters = u"A+ A A- B+ B B- C+ C C- D+ D D-"_s.split(u' ');

void Require(bool holds, QString const& sentence)
{
    if (!holds) {
        QTest::qFail(qPrintable(u"not so: "_s + sentence), __FILE__, __LINE__);
    }
}

double Bound(State const& state, qsizetype place)
{
    return Val(state.fields[kScale[place]].toStdString());
}

double Number(QString const& text)
{
    return CDbl(text.toStdString());
}

/// The letter of the first band that holds the percentage; in a gap the letter of the entry before.
QString RightLetter(State const& now, QString const& before)
{
    double const percentage = std::round(Number(now.fields[u"percentage"_s]));
    for (qsizetype band = 0; band < kLetters.size(); ++band) {
        if (percentage >= Bound(now, 2 * band + 1) && (band == 0 || percentage <= Bound(now, 2 * band))) {
            return kLetters[band];
        }
    }
    return percentage < Bound(now, kScale.size() - 1) ? u"F"_s : before;
}

/// Whether a file that was just written holds the scale, the percentages or a report, to the last byte.
bool IsWhole(QByteArray const& content, State const& state)
{
    QByteArray scale;
    QByteArray percentages;
    for (QString const& name : kScale) {
        scale += state.fields[name].toUtf8() + '\n';
    }
    for (QString const& row : state.lists.first()) {
        percentages += row.section(u',', 1, 1).toUtf8() + '\n';
    }
    bool const isReport = content.startsWith("%PDF-") && content.trimmed().endsWith("%%EOF");
    return isReport || content == scale || content == percentages;
}

State State::now(TestSession const& session, QStringList const& folders)
{
    State state;
    for (QString const& folder : folders) {
        for (QFileInfo const& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
            state.files[file.filePath()] = ContentOf(file.filePath());
        }
    }
    for (QLineEdit const* const field : session.window()->findChildren<QLineEdit*>()) {
        state.fields[field->objectName()] = field->text();
    }
    for (QString const& list : QString(kHistoryLists).split(u' ')) {
        // An entry without a letter is a row without a text.
        bool const isEmpty = session.widget(list)->findChild<QAbstractTableModel*>()->rowCount() == 0;
        state.lists += isEmpty ? QStringList() : session.text(list).split(u';');
    }
    return state;
}

void CheckState(State const& now)
{
    qsizetype const entries = now.entries();
    QStringList last;
    for (QStringList const& list : now.lists) {
        Require(list.size() == entries, u"the five lists are in step"_s);
        last += list.isEmpty() ? QString() : list.last();
    }
    for (qsizetype row = 0; row < entries; ++row) {
        Require(now.lists[0][row].startsWith(QString::number(row + 1) + u','), u"entries are counted up"_s);
    }
    auto const field = [&](char const* name) { return now.fields[QLatin1String(name)]; };
    Require(Number(field("numstudents")) == static_cast<double>(entries), u"the students are the rows"_s);
    Require(Number(field("average")) == Number(last[4]), u"the sum is the last one"_s);
    Require(Number(field("EditField1")) == Number(last[2]), u"the average is the last one"_s);
    Require(field("lettergrade") == last[3], u"the letter is the last one"_s);
    for (QChar const family : u"ABCDF"_s) {
        auto const count =
            std::ranges::count_if(now.lists[3], [family](auto const& row) { return row.startsWith(family); });
        Require(Number(now.fields[family.toLower() + u"grade"_s]) == static_cast<double>(count),
                u"the tally of %1 counts its letters"_s.arg(family));
    }
    Require(entries == 0 || field("total") == field("pointstemp"), u"entries keep the points"_s);
    Require(entries < 2 || field("problem").isEmpty(), u"one Undo does not clear two entries"_s);
}

void CheckStep(State const& before, State const& now)
{
    qsizetype const kept = std::min(before.entries(), now.entries());
    Require(now.entries() == 0 || std::abs(now.entries() - before.entries()) <= 1,
            u"one entry comes or goes, or all go"_s);
    for (qsizetype list = 0; kept > 0 && list < now.lists.size(); ++list) {
        Require(before.lists[list].first(kept) == now.lists[list].first(kept), u"earlier rows stay"_s);
    }
    for (QString const& path : before.files.keys() + now.files.keys()) {
        bool const isSame = now.files.contains(path) && now.files[path] == before.files.value(path);
        Require(isSame || IsWhole(now.files.value(path), now), u"%1 is whole"_s.arg(path));
    }
}

/// A refused press changes the scale and a few fields. An entry has the letter of its band on a sound scale, or, where
/// no band holds it, that of the entry before it.
void CheckGrading(State const& before, State const& now)
{
    Require(now.entries() >= before.entries(), u"Grade removes nothing"_s);
    if (now.entries() == before.entries()) {
        QStringList const mayChange = kScale + u"missed pointstemp problem foundaproblem"_s.split(u' ');
        for (QString const& name : before.fields.keys()) {
            Require(mayChange.contains(name) || before.fields[name] == now.fields[name],
                    u"a refused press leaves %1 alone"_s.arg(name));
        }
        return;
    }
    QString const letter = RightLetter(now, before.fields[u"lettergrade"_s]);
    Require(now.fields[u"lettergrade"_s] == letter, u"the letter is %1"_s.arg(letter));
    Require(Number(now.fields[u"lastmissed"_s]) <= Number(now.fields[u"total"_s]),
            u"no more missed than points"_s);
}

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
        return u"%1 entries, %2 files written"_s.arg(entries_).arg(files_);
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
    int entries_ = 0, files_ = 0;
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
    session_.reset();
    StartAgain();
    openDoors();
    ::mainscreen();
    session_ = std::make_unique<TestSession>();
    openDoors();
}

void Storm::openDoors()
{
    PlatformDoors().messageBox = [this](auto const&) { return below(8) == 0 ? kYes : kNo; };
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
    int acts = 2000;
    unsigned seed = 1;

private slots:
    void afterEachActAllHoldsThatMust()
    {
        QString const replay = u"%1 %2 %3"_s.arg(QCoreApplication::applicationFilePath()).arg(acts).arg(seed);
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
    if (count > 1) {
        qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // milliseconds: a long storm does not hang
        test.acts = QString::fromLocal8Bit(arguments[1]).toInt();
        test.seed = count > 2 ? QString::fromLocal8Bit(arguments[2]).toUInt() : std::random_device()();
    }
    return RunTests(test, 1, arguments);
}

#include "test_storm.moc"
