#pragma once

#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "platform/qt/doors.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QOperatingSystemVersion>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

inline constexpr bool kIsWindows = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;

inline constexpr char const* kNeedsPoints = "You must enter a positive value for the Number of Points.";
inline constexpr char const* kTooManyMissed =
    "The number missed should not exceed the total number of points.";
inline constexpr char const* kScaleRepaired =
    "An attempt was made to fix the grading scale. You should check "
    "these modifications before saving the settings.";
inline constexpr char const* kScaleUnsound =
    "Gradeloom has found problems with the grading scale which must be fixed to continue. Would you like "
    "Gradeloom to fix them for you?";
inline constexpr char const* kPointsAreFixed =
    "To change the number of points, you must first reset the current data.";
inline constexpr char const* kDeletesData =
    "You are about to change the grading scale in the middle of entering grades. This will cause Gradeloom to "
    "delete the data you have entered so far. Are you sure you want to do this?";
inline constexpr char const* kHistoryLists = "ListBox1 ListBox2 ListBox3 ListBox4 ListBox5";

/// The 24 scale fields in their order, and the scale that a session of tests begins with, whatever the default is.
inline constexpr char const* kScaleFieldNames =
    "aplusmax aplusmin amax amin aminusmax aminusmin bplusmax bplusmin bmax bmin bminusmax bminusmin "
    "cplusmax cplusmin cmax cmin cminusmax cminusmin dplusmax dplusmin dmax dmin dminusmax dminusmin";
inline constexpr char const* kTestScale =
    "100 98 97 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 60";

/// Those of the desktop, which a session replaces.
extern Doors realDoors;

/// The line of a test that a failure names.
struct Caller {
    Caller(char const* inFile = __builtin_FILE(), int inLine = __builtin_LINE()) : file(inFile), line(inLine)
    {
    }

    char const* file;
    int line;
};

/// The program from its start to its end, with every message box and dialog answered by the test. A box that
/// the test did not expect, a second one at once, or one before there is a window fails it and is answered with
/// No; an expected box that does not come fails it too.
class TestSession {
    Q_DISABLE_COPY(TestSession)

public:
    /// A box with this text, or one that starts so if it ends with a blank, and the answer; a notice has none.
    struct Box {
        std::string text;
        int answer = 0;
    };

    explicit TestSession(std::vector<Box> boxes = {});
    ~TestSession();

    void expectBox(std::string const& text, int answer = 0) { expectedBoxes_.push_back({text, answer}); }

    [[nodiscard]] class mainscreen& form() const { return ::mainscreen(); }
    [[nodiscard]] QMainWindow* window(char const* name = "mainscreen") const;
    /// A control. If there is none of this name and type the test fails, and gets one that has no effect.
    template <class Type = QWidget>
    [[nodiscard]] Type* widget(QString const& name, char const* in = "mainscreen", Caller caller = {}) const
    {
        QMainWindow* const parent = window(in);
        auto* const found = parent != nullptr ? parent->findChild<Type*>(name) : nullptr;
        return found != nullptr ? found : (reportMissing(name, in, caller), new Type(parent));
    }
    [[nodiscard]] QLineEdit* field(QString const& name, char const* in = "mainscreen",
                                   Caller caller = {}) const
    {
        return widget<QLineEdit>(name, in, caller);
    }
    /// The menus of the window in front, each followed by its items.
    [[nodiscard]] QList<QAction*> menuItems() const;
    /// A path in a folder of this session's own.
    [[nodiscard]] QString pathOf(char const* name) const { return folder_.filePath(QLatin1String(name)); }

    /// The text of a control. A list's rows are separated by ";", its cells by ",".
    [[nodiscard]] QString text(QString const& name, char const* in = "mainscreen", Caller caller = {}) const;
    /// The texts of several controls, separated by "|".
    [[nodiscard]] QString texts(QString const& names, char const* in = "mainscreen") const;
    /// Fails for each control that does not hold its text: "percentage=29 lettergrade=F correct=". A text
    /// ends in front of the next blank that is followed by a name and "=".
    void expectFields(QString const& expected, char const* in = "mainscreen", Caller caller = {}) const;
    /// Fails for each scale field that differs: "100 99 98" are the first, the others are as in kTestScale.
    void expectScale(QString const& numbers, Caller caller = {}) const;

    /// Brings the window to the front and waits until it is active.
    void activate(char const* name = "mainscreen") const;
    /// Replaces a field's text by typing, key by key; a line end is a press of Return.
    void type(QString const& name, QString const& text, char const* in = "mainscreen",
              Caller caller = {}) const;
    /// Writes texts as the program does: "amin=80 amax=97".
    void setFields(QString const& fields, Caller caller = {}) const;
    /// Carries acts out in their order, separated by "; ", and fails for a name that the form does not have:
    ///   missed=3     types into the field, "missed=3 Return" presses Return then
    ///   EditUndo     chooses the command of that name, or else clicks the control
    ///   focus amin   enters the field as Tab does; key Left, keys 96 and paste 12 act on the focused one, and so do compose 9
    ///                and commit 9 of an input method
    ///   drop amax 6  drops a text on the field; edit amax 6 sets it as an assistive program does
    ///   write amin=80 amax=97   writes as the program does
    void play(QString const& acts, Caller caller = {}) const;

    QString startScale;                     ///< the texts of the scale before the tests' own was written
    std::string openedAddress;              ///< the last address that was to be opened
    QString fileToChoose;                   ///< the file that the dialogs choose; empty cancels them
    std::vector<FileDialogRequest> dialogs; ///< the dialogs that came; for a print dialog all is empty
    std::string printFault;                 ///< why no print dialog can be shown; empty if it can
    std::function<void(QPrinter&)> setUpPrinter = [](QPrinter&) {}; ///< what is done in the print dialog
    std::function<void()> whileBoxIsUp = [] {};                     ///< runs before a box is answered
    std::string lastBox;                                            ///< the text of the last box

private:
    static void reportMissing(QString const& name, char const* in, Caller caller);

    std::vector<Box> expectedBoxes_;
    bool isBoxUp_ = false;
    QTemporaryDir folder_;
};

/// What a teacher does, the boxes that come, and what the controls hold then.
struct Scenario {
    char const* name;
    char const* acts;
    std::vector<TestSession::Box> boxes;
    char const* fields;
};

/// Adds a row of test data for each row of a table; a row has a name. QFETCH gets a pointer to it.
template <class Row, std::size_t count>
void AddRows(Row const (&table)[count])
{
    QTest::addColumn<Row const*>("row");
    for (Row const& row : table) {
        QTest::newRow(row.name) << &row;
    }
}

/// Plays the scenario of the current row after these acts, if any.
void CheckScenario(QString const& before = {}, Caller caller = {});
/// Lets the program run once more in this process, after it has ended.
void StartAgain();
/// The scale file that is read at the start.
QString PreferencesPath();
/// What a file holds; a text with the platform's line ends as "\n". On Windows any other line end shows as "!\n".
QByteArray ContentOf(QString const& path);
void WriteFile(QString const& path, QByteArray const& bytes);
/// Starts the toolkit for tests, with an empty home.
void StartTests();
int RunTests(QObject& tests, int count, char** arguments);

#define GRADELOOM_TEST(Class)                                                                                \
    int main(int count, char** arguments)                                                                    \
    {                                                                                                        \
        Class tests;                                                                                         \
        return RunTests(tests, count, arguments);                                                            \
    }
