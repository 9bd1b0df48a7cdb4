#include "frame/conversions.h"
#include "platform/qt/system/runtime_object.h"
#include "tests/harness.h"

#include <QAbstractButton>
#include <QDir>
#include <QMap>
#include <QMessageBox>
#include <QPrinter>
#include <QRegularExpression>
#include <QTimer>

#include <iostream>
#include <random>

namespace {

QStringList const kScale = QString::fromLatin1(kScaleFieldNames).split(u' ');

double Number(QString const& text)
{
    return CDbl(text.toStdString());
}

/// What the program holds at one moment.
struct State {
    explicit State(TestSession const& session)
    {
        for (QString const& folder : {session.pathOf(""), QFileInfo(PreferencesPath()).path()}) {
            for (QFileInfo const& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
                files[file.filePath()] = ContentOf(file.filePath());
            }
        }
        for (QLineEdit const* const field : session.window()->findChildren<QLineEdit*>()) {
            fields[field->objectName()] = field->text();
        }
        for (QString const& list : QString(kHistoryLists).split(u' ')) {
            // An entry without a letter is a row without a text.
            bool const isEmpty = session.widget(list)->findChild<QAbstractTableModel*>()->rowCount() == 0;
            lists += isEmpty ? QStringList() : session.text(list).split(u';');
        }
    }
    [[nodiscard]] qsizetype entries() const { return lists.first().size(); }

    QMap<QString, QString> fields;
    QList<QStringList> lists; ///< the rows of the five lists of entries
    QMap<QString, QByteArray> files;
};

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

void CheckState(State const& now)
{
    qsizetype const entries = now.entries();
    QStringList last;
    for (QStringList const& list : now.lists) {
        QVERIFY2(list.size() == entries, "the five lists are in step");
        last += list.value(entries - 1);
    }
    auto const field = [&](char const* name) { return now.fields[QLatin1String(name)]; };
    QVERIFY2(entries == 0 || last[0].startsWith(QString::number(entries) + u','), "rows are counted up");
    QVERIFY2(Number(field("numstudents")) == static_cast<double>(entries), "the students are the rows");
    QVERIFY2(Number(field("average")) == Number(last[4]), "the sum is the last one");
    QVERIFY2(Number(field("EditField1")) == Number(last[2]), "the average is the last one");
    QVERIFY2(field("lettergrade") == last[3], "the letter is the last one");
    for (QChar const family : u"ABCDF"_s) {
        qsizetype const count = now.lists[3].filter(QRegularExpression(u'^' + QString(family))).size();
        QVERIFY2(Number(now.fields[family.toLower() + u"grade"_s]) == static_cast<double>(count),
                 qPrintable(u"the tally of %1 counts its letters"_s.arg(family)));
    }
    QVERIFY2(entries == 0 || field("total") == field("pointstemp"), "entries keep the points");
    QVERIFY2(entries < 2 || field("problem").isEmpty(), "one Undo does not clear two entries");
}

/// A press of Grade makes an entry, or it is refused and changes the scale and a few fields alone.
void CheckStep(State const& before, State const& now, bool isGrading)
{
    qsizetype const kept = std::min(before.entries(), now.entries());
    QVERIFY2(now.entries() == 0 || std::abs(now.entries() - before.entries()) <= 1,
             "one entry comes or goes, or all go");
    for (qsizetype list = 0; kept > 0 && list < now.lists.size(); ++list) {
        QVERIFY2(before.lists[list].mid(0, kept) == now.lists[list].mid(0, kept), "earlier rows stay");
    }
    for (QString const& path : before.files.keys() + now.files.keys()) {
        bool const isSame = now.files.contains(path) && now.files[path] == before.files.value(path);
        QVERIFY2(isSame || IsWhole(now.files.value(path), now), qPrintable(u"%1 is whole"_s.arg(path)));
    }
    bool const isRefused = isGrading && now.entries() <= before.entries();
    QVERIFY2(!isRefused || now.entries() == before.entries(), "Grade removes nothing");
    QStringList const mayChange = kScale + u"missed pointstemp problem foundaproblem"_s.split(u' ');
    for (QString const& name : before.fields.keys()) {
        QVERIFY2(!isRefused || mayChange.contains(name) || before.fields[name] == now.fields[name],
                 qPrintable(u"a refused press leaves %1 alone"_s.arg(name)));
    }
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

} // namespace

/// Random acts over all windows, with every box and dialog answered at random and files changed by others.
class Storm final : public QObject {
    Q_OBJECT

public:
    Storm(int acts, unsigned seed) : acts_(acts), seed_(seed), random_(seed) {}

private slots:
    void invariantsHoldAfterEveryAct()
    {
        QString const replay =
            u"\"%1\" %2 %3"_s.arg(QCoreApplication::applicationFilePath()).arg(acts_).arg(seed_);
        std::cout << qPrintable(replay) << '\n' << std::flush; // at once: a crash leaves no other trace
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        start();
        for (int act = 0; act < acts_ && !QTest::currentTestFailed(); ++act) {
            actAndCheck();
        }
        session_.reset();
        std::cout << entries_ << " entries\n";
        QVERIFY2(!QTest::currentTestFailed(),
                 qPrintable(u"after: %1\nagain: %2"_s.arg(course_.join(u"\n  "), replay)));
    }

private: // NOLINT(readability-redundant-access-specifiers): what follows are no tests
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
    QString anyAct(bool isMain)
    {
        return (isMain && below(2) == 0 ? u"missed=%n Return"_s : any(isMain ? kActs : kActsElsewhere, u'|'))
            .replace(u"%e"_s, any(kEnds, u'|'))
            .replace(u"%f"_s, any(kFields))
            .replace(u"%n"_s, QString::number(below(20)))
            .replace(u"%t"_s, anyText())
            .replace(u"%o"_s, any(kOthers))
            .replace(u"%k"_s, any(kKeys));
    }

    /// A new main window, as at the next start of the program, which may bring its first notices.
    void start()
    {
        session_.reset();
        StartAgain();
        openDoors();
        ::mainscreen();
        session_ = std::make_unique<TestSession>();
        commands_ = session_->menuItems();
        openDoors();
    }

    void openDoors()
    {
        PlatformDoors().messageBox = [this](auto const& request) {
            int const answer = below(8) == 0 ? kYes : kNo;
            bool const isLater = below(6) == 0 && !Runtime::instance().isEnding;
            return isLater ? answerLater(request, answer) : answer;
        };
        PlatformDoors().fileDialog = [this](auto const&) {
            return below(8) == 0 ? std::nullopt : std::optional(anyPath().toStdString());
        };
        PlatformDoors().printDialog = [this](QPrinter& printer, auto, auto&) {
            printer.setOutputFileName(anyPath());
            return below(4) != 0;
        };
    }

    /// Opens the real box, and answers it by the mouse once something else has happened.
    int answerLater(MessageBoxRequest const& request, int answer)
    {
        QTimer::singleShot(0, qApp, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            int const event = below(8);
            if (event == 0) {
                QEvent logOut(QEvent::Quit); // as a signal does
                QCoreApplication::sendEvent(qApp, &logOut);
                return;
            }
            if (event > 3) {
                QTest::keyClick(box, event < 6 ? Qt::Key_Return : Qt::Key_5);
            } else if (session_ != nullptr) { // an assistive program chooses a command behind the box
                State const before(*session_);
                commands_[below(static_cast<int>(commands_.size()))]->trigger();
                QTest::qWait(1);
                QVERIFY2(State(*session_).fields == before.fields, "no command acts behind a box");
            }
            QVERIFY2(box->isVisible(), "neither a command nor a key that comes at once answers a box");
            auto const button = answer == kYes ? QMessageBox::Yes : QMessageBox::No;
            QWidget* const pressed = box->button(request.question ? button : QMessageBox::Ok);
            QTest::mouseClick(pressed, Qt::LeftButton);
        });
        return ShowMessageBox(request);
    }

    /// Another program removes a file, or puts a folder, a scale or anything else in its place.
    void changeFile()
    {
        QString const path = anyPath();
        QFile::remove(path);
        QDir().rmdir(path);
        bool const isScale = below(2) == 0;
        QByteArray content(below(6) == 0 ? below(70000) : 0, static_cast<char>(below(256)));
        for (int line = 0; line < 20 + below(8); ++line) {
            content += (isScale ? QString::number(100 - 4 * line) : anyText()).toUtf8() +
                       any("\n|\r\n", u'|').toUtf8();
        }
        QFile file(path);
        if (below(6) == 0) {
            QDir().mkdir(path);
        } else if (file.open(QIODevice::WriteOnly)) {
            file.write(content);
        }
    }

    void actAndCheck()
    {
        if (below(25) == 0) {
            changeFile();
        }
        if (QApplication::focusWidget() == nullptr || below(3) == 0) {
            session_->activate();
        }
        bool const isMain = QApplication::activeWindow() == session_->window();
        State const before(*session_);
        course_ = course_.last(std::min<qsizetype>(course_.size(), 9)) + QStringList(anyAct(isMain));
        session_->play(course_.last());
        QCoreApplication::processEvents();
        bool const isOver = session_->window() == nullptr || Runtime::instance().isEnding;
        if (isOver) {
            start();
        }
        State const now(*session_);
        entries_ += now.entries() > before.entries() ? 1 : 0;
        CheckState(now);
        CheckStep(before, now, isMain && !isOver && course_.last().startsWith(u"missed="_s));
    }

    int acts_;
    unsigned seed_;
    std::mt19937 random_;
    std::unique_ptr<TestSession> session_;
    QList<QAction*> commands_; ///< of the main window
    QStringList course_;       ///< the last acts
    int entries_ = 0;
};

/// test_storm [ACTS [SEED]]: another number of acts draws a new seed, if none is stated.
int main(int count, char** arguments)
{
    int acts = 2000;
    unsigned seed = 1;
    if (count > 1) {
        qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // milliseconds: a long storm does not hang
        acts = QString::fromLocal8Bit(arguments[1]).toInt();
        seed = count > 2 ? QString::fromLocal8Bit(arguments[2]).toUInt() : std::random_device()();
    }
    Storm test(acts, seed);
    return RunTests(test, 1, arguments);
}

#include "test_storm.moc"
