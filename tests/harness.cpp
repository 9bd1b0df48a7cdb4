#include "tests/harness.h"

#include "platform/files.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/widgets/line_edit.h"
#include "platform/runtime.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPrinter>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>

Doors realDoors;

namespace {

/// Each name and text in "percentage=29 lettergrade=F".
QRegularExpression const kNameAndText(u"(\\w+)=(.*?)(?= \\w+=|$)"_s,
                                      QRegularExpression::DotMatchesEverythingOption);

QString RowsOf(QAbstractTableModel const& model)
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

bool IsExpected(MessageBoxRequest const& request, TestSession::Box const& box)
{
    bool const isWhole = !box.text.ends_with(' ');
    return (isWhole ? request.text == box.text : request.text.starts_with(box.text)) &&
           request.title.empty() && request.question == (box.answer != 0);
}

void Drop(QWidget* field, QString const& text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(QPoint(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &enter);
    QCoreApplication::sendEvent(field, &drop);
    QCoreApplication::processEvents();
}

/// Presses a key: "Ctrl+Z".
void PressKey(QString const& name)
{
    QKeyCombination const key = QKeySequence(name)[0];
    if (key.key() == 0 || key.key() == Qt::Key_unknown) {
        QFAIL(qPrintable(name));
    }
    QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
}

} // namespace

void StartAgain()
{
    if (Runtime::instance().isEnding) { // and so is the toolkit, until its event loop has run once more
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }
    Runtime::instance().isEnding = false;
}

TestSession::TestSession(std::vector<Box> boxes) : expectedBoxes_(std::move(boxes))
{
    StartAgain();
    PlatformDoors().messageBox = [this](MessageBoxRequest const& request) {
        lastBox = request.text;
        if (window() == nullptr || isBoxUp_ || expectedBoxes_.empty() ||
            !IsExpected(request, expectedBoxes_.front())) {
            QTest::qFail(("unexpected box: " + request.text).c_str(), __FILE__, __LINE__);
            return kNo;
        }
        int const answer = expectedBoxes_.front().answer;
        expectedBoxes_.erase(expectedBoxes_.begin());
        isBoxUp_ = true;
        whileBoxIsUp();
        isBoxUp_ = false;
        return answer;
    };
    PlatformDoors().fileDialog = [this](FileDialogRequest const& request) {
        dialogs.push_back(request);
        return fileToChoose.isEmpty() ? std::nullopt : std::optional(fileToChoose.toStdString());
    };
    PlatformDoors().printDialog = [this](QPrinter& printer, auto, std::string& fault) {
        dialogs.emplace_back();
        fault = printFault;
        printer.setOutputFileName(fileToChoose);
        setUpPrinter(printer);
        return !fileToChoose.isEmpty() && fault.empty();
    };
    PlatformDoors().browser = [this](std::string const& address) { openedAddress = address; };
    ::mainscreen();
    startScale = texts(kScaleFieldNames);
    if (!QFile::exists(PreferencesPath())) {
        for (int i = 0; i < 24; ++i) {
            setFields(QString(kScaleFieldNames).section(u' ', i, i) + u'=' +
                      QString(kTestScale).section(u' ', i, i));
        }
    }
    activate();
}

TestSession::~TestSession()
{
    Runtime::instance().windows.clear();
    PlatformDoors().messageBox = nullptr; // a box that comes now ends the test
    for (Box const& box : expectedBoxes_) {
        QTest::qFail(("box did not come: " + box.text).c_str(), __FILE__, __LINE__);
    }
}

QMainWindow* TestSession::window(char const* name) const
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(name) && widget->isVisible()) {
            return qobject_cast<QMainWindow*>(widget);
        }
    }
    return nullptr;
}

void TestSession::reportMissing(QString const& name, char const* in, Caller caller)
{
    QString const message = u"there is no such control or command: \"%1\" in \"%2\""_s;
    QTest::qFail(qPrintable(message.arg(name, QLatin1String(in))), caller.file, caller.line);
}

QString TestSession::text(QString const& name, char const* in, Caller caller) const
{
    QWidget const* const control = widget(name, in, caller);
    auto const* const rows = control->findChild<QAbstractTableModel*>();
    return rows != nullptr ? RowsOf(*rows) : control->property("text").toString();
}

QString TestSession::texts(QString const& names, char const* in) const
{
    QStringList all;
    for (QString const& name : names.split(u' ')) {
        all += text(name, in);
    }
    return all.join(u'|');
}

void TestSession::expectFields(QString const& expected, char const* in, Caller caller) const
{
    for (auto const& match : kNameAndText.globalMatch(expected)) {
        if (QString const found = text(match.captured(1), in, caller); found != match.captured(2)) {
            QString const message = u"found \"%1\", expected %2"_s.arg(found, match.captured());
            QTest::qFail(qPrintable(message), caller.file, caller.line);
        }
    }
}

void TestSession::expectScale(QString const& numbers, Caller caller) const
{
    QStringList const stated = numbers.split(u' ');
    QStringList const names = QString(kScaleFieldNames).split(u' ');
    QStringList const others = QString(kTestScale).split(u' ');
    for (qsizetype i = 0; i < names.size(); ++i) {
        expectFields(names[i] + u'=' + stated.value(i, others[i]), "mainscreen", caller);
    }
}

QList<QAction*> TestSession::menuItems() const
{
    QList<QAction*> all;
    auto* const front = qobject_cast<QMainWindow*>(QApplication::activeWindow());
    for (QAction* const menu : front != nullptr ? front->menuBar()->actions() : QList<QAction*>()) {
        all += menu;
        all += menu->menu() != nullptr ? menu->menu()->actions() : QList<QAction*>();
    }
    return all;
}

void TestSession::activate(char const* name) const
{
    QMainWindow* const wanted = window(name);
    QVERIFY2(wanted != nullptr, name);
    wanted->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(wanted));
}

void TestSession::type(QString const& name, QString const& text, char const* in, Caller caller) const
{
    QLineEdit* const one = field(name, in, caller);
    one->setFocus();
    one->selectAll();
    QTest::keyClick(one, Qt::Key_Delete);
    QTest::keyClicks(one, QString(text).replace(u'\n', u'\r'));
}

void TestSession::setFields(QString const& fields, Caller caller) const
{
    for (auto const& match : kNameAndText.globalMatch(fields)) {
        if (auto* const one = dynamic_cast<LineEdit*>(field(match.captured(1), "mainscreen", caller))) {
            one->writeByProgram(match.captured(2));
        }
    }
}

void TestSession::play(QString const& acts, Caller caller) const
{
    QList<QAction*> const items = menuItems();
    auto const control = [&](QString const& name) { return widget(name, "mainscreen", caller); };
    for (QString const& act : acts.split(u"; "_s)) {
        QString const word = act.section(u' ', 0, 0);
        QString const rest = act.section(u' ', 1);
        auto const command = std::ranges::find(items, act, &QAction::objectName);
        if (QApplication::focusWidget() == nullptr) { // a box was open
            activate();
        }
        if (word == "write"_L1) {
            setFields(rest, caller);
        } else if (word == "focus"_L1) {
            control(rest)->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
        } else if (word == "key"_L1) {
            PressKey(rest);
        } else if (word == "keys"_L1) {
            QTest::keyClicks(QApplication::focusWidget(), rest);
        } else if (word == "paste"_L1) {
            QGuiApplication::clipboard()->setText(rest);
            play("EditPaste", caller);
        } else if (word == "compose"_L1 || word == "commit"_L1) {
            QInputMethodEvent event(word == "compose"_L1 ? rest : QString(), {});
            event.setCommitString(word == "commit"_L1 ? rest : QString());
            QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
        } else if (word == "drop"_L1) {
            Drop(control(rest.section(u' ', 0, 0)), rest.section(u' ', 1));
        } else if (word == "edit"_L1) {
            auto* const spoken = QAccessible::queryAccessibleInterface(control(rest.section(u' ', 0, 0)));
            spoken->setText(QAccessible::Value, rest.section(u' ', 1));
            QCoreApplication::processEvents(); // it is answered first
        } else if (act.contains(u'=')) {
            QString const text = act.section(u'=', 1).replace(u" Return"_s, u"\n"_s);
            type(act.section(u'=', 0, 0), text, "mainscreen", caller);
        } else if (command != items.end()) {
            [[maybe_unused]] auto const before = QApplication::topLevelWidgets().size();
            (*command)->trigger();
            QCoreApplication::processEvents(); // without a key or click it runs a moment later
            if (kIsWindows && QApplication::topLevelWidgets().size() > before) {
                QTest::qWait(100); // milliseconds; the desktop may bring the new window to the front late
            }
        } else {
            QTest::mouseClick(control(act), Qt::LeftButton);
        }
    }
}

void CheckScenario(QString const& before, Caller caller)
{
    QFETCH(Scenario const*, row);
    TestSession const session(row->boxes);
    session.play(before + row->acts, caller);
    session.expectFields(row->fields, "mainscreen", caller);
}

QString PreferencesPath()
{
#ifdef Q_OS_LINUX // where the path is known; in the toolkit's test mode the folder ".config" is elsewhere
    return QDir::homePath() + u"/.qttest/config/gradeloom/Preferences"_s;
#else
    return QString::fromStdString(GetFolderItem("Preferences", 0).value_or(FolderItem("")).Path());
#endif
}

QByteArray ContentOf(QString const& path)
{
    QFile file(path);
    QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (kIsWindows && !bytes.startsWith("%PDF-")) {
        bytes.replace("\n", "!\n").replace("\r!\n", "\n");
    }
    return bytes;
}

void WriteFile(QString const& path, QByteArray const& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void StartTests()
{
    static QTemporaryDir const home; // no test meets the files of a user or of another test
    qputenv("HOME", QFile::encodeName(home.path()));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        // This neither needs a display nor takes a developer's keyboard.
        qputenv("QT_QPA_PLATFORM", kIsWindows ? "windows" : "offscreen");
    }
    QStandardPaths::setTestModeEnabled(true);
    RuntimeInit(0, nullptr);
    QString const icons = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                          u"/icons/hicolor/16x16/apps"_s; // one is installed
    QDir().mkpath(icons);
    QImage(16, 16, QImage::Format_RGB32).save(icons + u"/gradeloom.png"_s);
    RuntimePerformInitializers();
    realDoors = PlatformDoors();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // a system's own can't be driven from here
    if (kIsWindows) {                                        // where the settings don't move with HOME
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)).removeRecursively();
    }
}

int RunTests(QObject& tests, int count, char** arguments)
{
    StartTests();
    int const failures = QTest::qExec(&tests, count, arguments);
    RuntimePerformFinalizers();
    return qApp == nullptr ? failures : 1; // nothing of the toolkit is left
}
