#pragma once

#include "frame/mainscreen.h"
#include "platform/message_box.h"
#include "platform/qt/desktop_doors.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

inline constexpr char const* kNoPoints = "You must enter a positive value for the Number of Points.";
inline constexpr char const* kTooMany = "The number missed should not exceed the total number of points.";
inline constexpr char const* kRepaired = "An attempt was made to fix the grading scale.";
inline constexpr char const* kTallies = "agrade bgrade cgrade dgrade fgrade";
inline constexpr char const* kHistory = "ListBox1 ListBox2 ListBox3 ListBox4 ListBox5";

/// The fields of the scale in their order, as Desk::show takes them.
inline constexpr char const* kFields = "aplusmax aplusmin amax amin aminusmax aminusmin "
                                       "bplusmax bplusmin bmax bmin bminusmax bminusmin "
                                       "cplusmax cplusmin cmax cmin cminusmax cminusmin "
                                       "dplusmax dplusmin dmax dmin dminusmax dminusmin";

/// A main window as it stands after a start, with every way out of the process scripted. A message box that
/// was not expected fails the test and is answered with No; one that did not come fails it too.
class Desk {
    Q_DISABLE_COPY(Desk)

public:
    /// A box starts with this text and is answered so; a notice has no answer.
    struct Box {
        std::string text;
        int answer = 0;
    };

    explicit Desk(std::vector<Box> boxes = {});
    ~Desk();

    void expect(std::string const& text, int answer = 0) { expected_.push_back({text, answer}); }
    [[nodiscard]] bool allSeen() const { return expected_.empty(); }
    [[nodiscard]] class mainscreen& form() const { return ::mainscreen(); }
    [[nodiscard]] QMainWindow* window(char const* name = "mainscreen") const;
    template <class Type = QWidget>
    [[nodiscard]] Type* widget(char const* name, char const* in = "mainscreen") const
    {
        return window(in)->findChild<Type*>(QLatin1String(name));
    }
    /// What these controls hold, with "|" between them; rows of a list end with ";", cells with ",".
    [[nodiscard]] QString show(QByteArray const& names, char const* in = "mainscreen") const;
    /// The menus of the window in front, each with its items behind it.
    [[nodiscard]] QList<QAction*> menus() const;
    [[nodiscard]] QString at(char const* name) const { return folder_.filePath(QLatin1String(name)); }

    /// Brings the window to the front and waits until it is active.
    void activate(char const* name = "mainscreen") const;
    void choose(char const* item) const;
    void paste(QByteArray const& text) const;
    void press(char const* name, char const* in = "mainscreen") const;
    /// Replaces a field's text by typing, key by key; a line end is a press of Return.
    void type(char const* field, QByteArray const& text, char const* in = "mainscreen") const;
    void gradeAll(char const* points, std::vector<char const*> const& missed) const;
    /// Writes texts as the program does: "amin=80 amax=97".
    void write(QByteArray const& fields) const;

    std::string browsed;                  ///< the last address that was to be opened
    QString chosen;                       ///< the file that the dialogs choose; empty cancels them
    std::vector<FileDialogRequest> asked; ///< the dialogs that have come; of a print dialog all is empty

private:
    std::vector<Box> expected_;
    QTemporaryDir folder_;
};

void Compose(QLineEdit* field, char const* commit, char const* preedit = "");
/// What a file holds, with the platform's line ends as "\n". Any other line end shows as "!\n".
QByteArray Content(QString const& path);
/// What the system says of a folder that is not there.
std::string NoSuchFolder();
int RunTests(QObject& tests, int count, char** arguments);

#define GRADELOOM_TEST(Class)                                                                                \
    int main(int count, char** arguments)                                                                    \
    {                                                                                                        \
        Class tests;                                                                                         \
        return RunTests(tests, count, arguments);                                                            \
    }
