#pragma once

#include "frame/mainscreen.h"
#include "platform/doors.h"

#include <QTest>

#include <string>
#include <vector>

class QAction;
class QWidget;

/// A main window as it stands after a start, with every way out of the process scripted: a message box must
/// have been expected, else the test fails and the box counts as answered with No. Boxes come in the expected
/// order.
class Desk {
public:
    /// The start itself may bring a notice.
    explicit Desk(char const* noticeAtStart = nullptr);
    ~Desk();
    Desk(Desk const&) = delete;
    Desk& operator=(Desk const&) = delete;

    /// The next box starts with this text and is answered so.
    void expect(std::string const& text, int answer = 0);
    /// All expected boxes have come.
    [[nodiscard]] bool allSeen() const { return expected_.empty(); }

    [[nodiscard]] class mainscreen& form() const { return ::mainscreen(); }
    /// The widget of a control, of the main window or another one.
    [[nodiscard]] QWidget* widget(char const* name, char const* window = "mainscreen") const;
    [[nodiscard]] class QMainWindow* window(char const* name = "mainscreen") const;

    /// Grades a score as the teacher does: types into the field, presses Return.
    void grade(char const* score, char const* field = "missed") const;
    /// Replaces a field's text by typing, key by key.
    void type(char const* field, char const* text, char const* window = "mainscreen") const;
    /// Sets the number of points and grades these numbers missed.
    void gradeAll(char const* points, std::vector<char const*> const& missed) const;
    /// Writes a field's text as the program does.
    void write(char const* field, char const* text) const;
    /// Writes several fields: "amin=80 amax=97".
    void writeAll(char const* fields) const;
    /// Checks the box that makes the number correct count, or takes its check away.
    void useCorrect(bool checked) const;
    /// Clicks a button of the main window.
    void press(char const* button) const;
    /// Chooses a menu item of the window in front.
    void choose(char const* item) const;
    [[nodiscard]] QAction* item(char const* name) const;
    /// What these controls hold, with "|" between them; rows of a list end with ";", cells with ",".
    [[nodiscard]] QString show(char const* names, char const* window = "mainscreen") const;
    /// Brings the window to the front and waits until it is active.
    void activate(char const* window = "mainscreen") const;

    std::string browsed;                  ///< the last address that was to be opened
    std::string chosen;                   ///< what the file dialogs choose; empty cancels them
    std::vector<FileDialogRequest> asked; ///< the file dialogs that have come
    std::string printTo;                  ///< the PDF file that the print dialog chooses; empty cancels it
    int printDialogs = 0;

private:
    struct Box {
        std::string text;
        int answer;
    };
    std::vector<Box> expected_;
};

/// The bytes of a file; empty if it can't be read.
QByteArray Content(QString const& path);
void Put(QString const& path, QByteArray const& bytes);

/// Main function of a test program: the program's own start, then the tests.
int RunTests(QObject& tests, int count, char** arguments);

#define GRADELOOM_TEST(Class)                                                                                \
    int main(int count, char** arguments)                                                                    \
    {                                                                                                        \
        Class tests;                                                                                         \
        return RunTests(tests, count, arguments);                                                            \
    }
