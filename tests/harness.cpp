#include "tests/harness.h"

#include "platform/doors.h"
#include "platform/message_box.h"
#include "platform/qt/line_edit.h"
#include "platform/qt/open_windows.h"
#include "platform/qt/text.h"
#include "platform/runtime.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QPrinter>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>

namespace {

QAction* FindAction(QList<QAction*> const& actions, QString const& name)
{
    for (QAction* const action : actions) {
        if (action->objectName() == name) {
            return action;
        }
        QAction* const inside = action->menu() ? FindAction(action->menu()->actions(), name) : nullptr;
        if (inside != nullptr) {
            return inside;
        }
    }
    return nullptr;
}

QString Rows(QAbstractItemModel const& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells += model.index(row, column).data().toString();
        }
        rows += cells.join(u',');
    }
    return rows.join(u';');
}

} // namespace

Desk::Desk(char const* noticeAtStart)
{
    if (noticeAtStart != nullptr) {
        expect(noticeAtStart);
    }
    PlatformDoors().messageBox = [this](MessageBoxRequest const& request) {
        if (expected_.empty() || request.text.rfind(expected_.front().text, 0) != 0) {
            QTest::qFail(("unexpected box: " + request.text).c_str(), __FILE__, __LINE__);
            return kNo;
        }
        Box const box = expected_.front();
        expected_.erase(expected_.begin());
        if (request.question != (box.answer != 0)) {
            QTest::qFail("a notice and a question are not the same", __FILE__, __LINE__);
        }
        return box.answer;
    };
    PlatformDoors().fileDialog = [this](FileDialogRequest const& request) {
        asked.push_back(request);
        return chosen.empty() ? std::nullopt : std::optional(chosen);
    };
    PlatformDoors().printDialog = [this](QPrinter& printer) {
        ++printDialogs;
        printer.setOutputFileName(ToQt(printTo));
        return !printTo.empty();
    };
    PlatformDoors().browser = [this](std::string const& address) { browsed = address; };
    ::mainscreen();
    activate();
}

Desk::~Desk()
{
    EndOpenWindows();
    PlatformDoors().messageBox = nullptr; // a box that comes now ends the test
    if (!expected_.empty()) {
        QTest::qFail(("box did not come: " + expected_.front().text).c_str(), __FILE__, __LINE__);
    }
}

void Desk::expect(std::string const& text, int answer)
{
    expected_.push_back({text, answer});
}

QMainWindow* Desk::window(char const* name) const
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(name) && widget->isVisible()) {
            return qobject_cast<QMainWindow*>(widget);
        }
    }
    return nullptr;
}

QWidget* Desk::widget(char const* name, char const* window) const
{
    return this->window(window)->findChild<QWidget*>(QLatin1String(name));
}

void Desk::activate(char const* window) const
{
    this->window(window)->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(this->window(window)));
}

void Desk::type(char const* field, char const* text, char const* window) const
{
    auto* const edit = qobject_cast<QLineEdit*>(widget(field, window));
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, QLatin1String(text));
}

void Desk::write(char const* field, char const* text) const
{
    static_cast<LineEdit*>(widget(field))->writeByProgram(QLatin1String(text));
}

void Desk::writeAll(char const* fields) const
{
    for (QByteArray const& field : QByteArray(fields).split(' ')) {
        QList<QByteArray> const parts = field.split('=');
        write(parts[0], parts[1]);
    }
}

void Desk::useCorrect(bool checked) const
{
    static_cast<QCheckBox*>(widget("checkcorrect"))->setChecked(checked);
}

QAction* Desk::item(char const* name) const
{
    auto const* const front = qobject_cast<QMainWindow*>(QApplication::activeWindow());
    return FindAction(front->menuBar()->actions(), QLatin1String(name));
}

void Desk::press(char const* button) const
{
    qobject_cast<QAbstractButton*>(widget(button))->click();
}

void Desk::choose(char const* item) const
{
    this->item(item)->trigger();
}

QString Desk::show(char const* names, char const* window) const
{
    QStringList shown;
    for (QString const& name : QString::fromLatin1(names).split(u' ')) {
        QWidget const* const control = this->window(window)->findChild<QWidget*>(name);
        auto const* const list = qobject_cast<QTableView const*>(control);
        shown += list != nullptr ? Rows(*list->model()) : control->property("text").toString();
    }
    return shown.join(u'|');
}

void Desk::grade(char const* score, char const* field) const
{
    type(field, score);
    QTest::keyClick(widget(field), Qt::Key_Return);
}

void Desk::gradeAll(char const* points, std::vector<char const*> const& missed) const
{
    type("total", points);
    for (char const* const score : missed) {
        grade(score);
    }
}

QByteArray Content(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Put(QString const& path, QByteArray const& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

int RunTests(QObject& tests, int count, char** arguments)
{
    QTemporaryDir const home; // no test meets the files of a user or of another test
    qputenv("HOME", QFile::encodeName(home.path()));
    QStandardPaths::setTestModeEnabled(true);
    RuntimeInit();
    RuntimePerformInitializers();
    int const failures = QTest::qExec(&tests, count, arguments);
    RuntimePerformFinalizers();
    return failures;
}
