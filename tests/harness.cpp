#include "tests/harness.h"

#include "platform/qt/line_edit.h"
#include "platform/qt/open_windows.h"
#include "platform/runtime.h"

#include <QClipboard>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QStandardPaths>

#include <cerrno>

namespace {

#ifdef Q_OS_WIN
constexpr bool kIsWindows = true;
#else
constexpr bool kIsWindows = false;
#endif

QString Rows(QAbstractItemModel const& model)
{
    QString rows;
    for (int i = 0; i < model.rowCount() * model.columnCount(); ++i) {
        int const column = i % model.columnCount();
        rows += column > 0 ? u"," : i > 0 ? u";" : u"";
        rows += model.index(i / model.columnCount(), column).data().toString();
    }
    return rows;
}

} // namespace

Desk::Desk(std::vector<Box> boxes) : expected_(std::move(boxes))
{
    PlatformDoors().messageBox = [this](MessageBoxRequest const& request) {
        if (expected_.empty() || request.text.rfind(expected_.front().text, 0) != 0 ||
            request.question != (expected_.front().answer != 0)) {
            QTest::qFail(("unexpected box: " + request.text).c_str(), __FILE__, __LINE__);
            return kNo;
        }
        int const answer = expected_.front().answer;
        expected_.erase(expected_.begin());
        return answer;
    };
    PlatformDoors().fileDialog = [this](FileDialogRequest const& request) {
        asked.push_back(request);
        return chosen.isEmpty() ? std::nullopt : std::optional(chosen.toStdString());
    };
    PlatformDoors().printDialog = [this](QPrinter& printer, std::string& /*fault*/) {
        asked.emplace_back();
        printer.setOutputFileName(chosen);
        return !chosen.isEmpty();
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

QMainWindow* Desk::window(char const* name) const
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(name) && widget->isVisible()) {
            return qobject_cast<QMainWindow*>(widget);
        }
    }
    return nullptr;
}

QList<QAction*> Desk::menus() const
{
    QList<QAction*> all;
    for (QAction* const menu :
         static_cast<QMainWindow*>(QApplication::activeWindow())->menuBar()->actions()) {
        all += menu;
        all += menu->menu() != nullptr ? menu->menu()->actions() : QList<QAction*>();
    }
    return all;
}

QString Desk::show(QByteArray const& names, char const* in) const
{
    QStringList shown;
    for (QByteArray const& name : names.split(' ')) {
        auto const* const list = widget<QTableView>(name, in);
        shown += list != nullptr ? Rows(*list->model()) : widget(name, in)->property("text").toString();
    }
    return shown.join(u'|');
}

void Desk::activate(char const* name) const
{
    window(name)->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window(name)));
}

void Desk::choose(char const* item) const
{
    QList<QAction*> const all = menus();
    auto const isMeant = [item](QAction const* action) {
        return action->objectName() == QLatin1String(item);
    };
    (*std::find_if(all.begin(), all.end(), isMeant))->trigger();
}

void Desk::paste(QByteArray const& text) const
{
    QGuiApplication::clipboard()->setText(text);
    choose("EditPaste");
}

void Desk::press(char const* name, char const* in) const
{
    QTest::mouseClick(widget(name, in), Qt::LeftButton);
}

void Desk::type(char const* field, QByteArray const& text, char const* in) const
{
    widget(field, in)->setFocus();
    widget<QLineEdit>(field, in)->selectAll();
    QTest::keyClick(widget(field, in), Qt::Key_Delete);
    QTest::keyClicks(widget(field, in), QString::fromLatin1(text).replace(u'\n', u'\r'));
}

void Desk::gradeAll(char const* points, std::vector<char const*> const& missed) const
{
    type("total", points);
    for (char const* const score : missed) {
        type("missed", score + "\n"_ba);
    }
}

void Desk::write(QByteArray const& fields) const
{
    for (QByteArray const& field : fields.split(' ')) {
        QList<QByteArray> const parts = field.split('=');
        static_cast<LineEdit*>(widget(parts[0]))->writeByProgram(parts[1]);
    }
}

void Compose(QLineEdit* field, char const* commit, char const* preedit)
{
    QInputMethodEvent event(QLatin1String(preedit), {});
    event.setCommitString(QLatin1String(commit));
    QCoreApplication::sendEvent(field, &event);
}

QByteArray Content(QString const& path)
{
    QFile file(path);
    QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (kIsWindows) {
        bytes.replace("\n", "!\n").replace("\r!\n", "\n");
    }
    return bytes;
}

std::string NoSuchFolder()
{
    constexpr int kPathNotFound = 3; // the system's number
    std::string reason = qt_error_string(kIsWindows ? kPathNotFound : ENOENT).toStdString();
    reason.erase(reason.find_last_not_of('.') + 1);
    return reason;
}

int RunTests(QObject& tests, int count, char** arguments)
{
    QTemporaryDir const home; // no test meets the files of a user or of another test
    qputenv("HOME", QFile::encodeName(home.path()));
    QStandardPaths::setTestModeEnabled(true);
    RuntimeInit();
    RuntimePerformInitializers();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // a system's own can't be driven from here
    if (kIsWindows) {                                        // where the settings don't move with HOME
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)).removeRecursively();
    }
    int const failures = QTest::qExec(&tests, count, arguments);
    RuntimePerformFinalizers();
    return failures;
}
