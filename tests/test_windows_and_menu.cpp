#include "frame/author.h"
#include "frame/startup.h"
#include "platform/file_dialogs.h"
#include "platform/printing.h"
#include "platform/qt/system/native.h"
#include "platform/qt/widgets/program.h"
#include "platform/runtime.h"
#include "presenter/presenter.h"
#include "tests/harness.h"

#include <QDesktopServices>
#include <QMenu>
#include <QPrinter>
#include <QTimer>

#include <csignal>
#include <stdexcept>

namespace {

// clang-format off
struct Chart {
    char const* name;  // the points as they are typed
    char const* chart; // the rows of its three lists and the last of them
} const kCharts[] = {
    {"-0.5", "1 0 0 0,NaN"},  {"-3", "0 0 0 "},         {"1e2", "2 0 0 -1,0"},
    {"35.9", "36 0 0 -35,0"}, {"36", "36 1 0 -36,0"},   {"70", "36 35 0 -70,0"},
    {"71", "36 35 1 -71,0"},  {"105.9", "36 35 35 -105,0"},
};

struct Commands {
    char const* name; // the control that has the focus
    char const* window;
    char const* on; // the first words of the items
} const kCommands[] = {
    {"PushButton1", "Author",     "Close Quit"},
    {"EditField1",  "Window1",    "Close Quit Cut Copy Paste Clear"},
    {"total",       "mainscreen", "Open Presenter Close Export Reset Print Quit Undo Cut Copy Paste Clear About"},
    {"percentage",  "mainscreen", "Open Presenter Close Export Reset Print Quit Undo Copy About"},
    {"PushButton3", "mainscreen", "Open Presenter Close Export Reset Print Quit Undo About"},
};
// clang-format on

/// Runs the program with these acts after its start, until it ends.
void RunProgram(std::function<void()> const& acts)
{
    StartAgain();
    QTimer::singleShot(0, qApp, acts);
    _Main();
}

} // namespace

/// The three windows, the chart of the Presenter, and the menu bar that serves them all.
class WindowsAndMenu final : public QObject {
    Q_OBJECT

private slots:
    void enabledCommandsFollowTheFrontWindowAndTheFocus_data() { AddRows(kCommands); }
    void enabledCommandsFollowTheFrontWindowAndTheFocus()
    {
        QFETCH(Commands const*, row);
        TestSession const session;
        ::Window1();
        ::Author();
        session.activate(row->window);
        session.widget(row->name, row->window)->setFocus();
        QStringList on;
        for (QAction const* const item : session.menuItems()) {
            if (item->menu() == nullptr && item->isVisible() && item->isEnabled() && !item->isSeparator()) {
                on += item->text().section(u' ', 0, 0).remove(u"..."_s);
            }
        }
        QCOMPARE(on.join(u' '), QLatin1String(row->on));
    }

    void windowsEnableTheirOwnCommands()
    {
        TestSession const session;
        ::Window1();
        ::Author();
        QString const all = u"About FileReset EditUndo FilePrint FileExport FileOpen filepresent"_s;
        for (auto const& [window, commands] :
             {std::pair("mainscreen", all), {"Window1", u"FileClose"_s}, {"Author", u"FileClose"_s}}) {
            session.activate(window);
            for (QString const& command : commands.split(u' ')) {
                MenuItem& item = session.form().MenuBar().Item(command.toStdString());
                item.AutoEnabled = false;
                item.Enabled(false);
                QMetaObject::invokeMethod(session.menuItems()[1]->menu(), "aboutToShow");
                item.AutoEnabled = true;
                QVERIFY2(item.Enabled(), qPrintable(window + u": "_s + command));
            }
        }
    }

    void aboutIsOneWindowAndOpensThePageOnMouseDown()
    {
        TestSession session;
        session.play("About; key Return; key Space");
        QWidget* const button = session.widget("PushButton1", "Author");
        QTest::mouseClick(button, Qt::RightButton);
        QCOMPARE(session.openedAddress, std::string());
        QTest::mousePress(button, Qt::LeftButton);
        QCOMPARE(std::exchange(session.openedAddress, ""), std::string(WEB_PAGE));
        QTest::mouseRelease(button, Qt::LeftButton);
        QCOMPARE(session.openedAddress, std::string());
        PlatformDoors() = realDoors;
        QDesktopServices::setUrlHandler(u"https"_s, this, "open");
        QTest::mouseDClick(button, Qt::LeftButton);
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QCOMPARE(openedPage_, QUrl(QStringLiteral(WEB_PAGE)));
        QPointer<QMainWindow> const window = session.window("Author");
        session.activate();
        session.play("About");
        QTRY_COMPARE(QApplication::activeWindow(), window); // the same one
    }

    void commandsRefuseWithANotice()
    {
        TestSession session({{"There is currently no data to send to the printer."},
                             {"There is currently no data to export to disk."},
                             {"In order to change the current grading scale, you must first reset the data "
                              "that has already been entered."}});
        session.play("FilePrint; FileExport; total=30; missed=3 Return; FileOpen");
        QVERIFY(session.dialogs.empty());
    }

    void chartSplitsIntoThreePairs_data() { AddRows(kCharts); }
    void chartSplitsIntoThreePairs()
    {
        QFETCH(Chart const*, row);
        TestSession const session;
        session.play("filepresent");
        session.type("EditField1", row->name + u"\n"_s, "Window1");
        QString const lists = session.texts("ListBox1 ListBox2 ListBox5", "Window1");
        QString found;
        for (QString const& rows : lists.split(u'|')) {
            found += QString::number(rows.count(u',')) + u' ';
        }
        found += lists.section(u'|', -1, -1, QString::SectionSkipEmpty).section(u';', -1);
        QCOMPARE(found, QLatin1String(row->chart));
    }

    void goReplacesTheChart()
    {
        TestSession session;
        session.play("filepresent");
        session.type("EditField1", "80\n", "Window1");
        session.type("EditField1", "73\n", "Window1");
        QModelIndex const last = session.widget<QTableView>("ListBox1", "Window1")->model()->index(35, 1);
        QVERIFY((last.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0);
        session.expectFields("ListBox5=-71,2.739726;-72,1.369863;-73,0 ListBox7=2;1;0", "Window1");
        session.expectBox("This feature of Gradeloom can only present 105 percentages.");
        session.type("EditField1", "106\n", "Window1");
        session.expectFields(
            "EditField1=106 ListBox1= ListBox2= ListBox3= ListBox4= ListBox5= ListBox6= ListBox7=",
            "Window1");
    }

    void presenterIsOneWindowUntilItCloses()
    {
        TestSession const session;
        session.play("filepresent");
        session.type("EditField1", "1\n", "Window1");
        for (bool const isMinimized : {false, true}) {
            session.window("Window1")->setWindowState(isMinimized ? Qt::WindowMinimized : Qt::WindowNoState);
            session.activate();
            session.play("key Ctrl+T");
            QTRY_COMPARE(QApplication::activeWindow(), session.window("Window1"));
            QVERIFY(!session.window("Window1")->isMinimized());
        }
        session.expectFields("EditField1=1 ListBox1=0,100;-1,0", "Window1");
        session.window("Window1")->close();
        QVERIFY(session.window("Window1") == nullptr && Program::instance().front.window() == nullptr);
        session.activate();
        session.play("filepresent");
        session.expectFields("EditField1= ListBox1=", "Window1");
    }

    void onlyTheCommandClosesTheMainWindowAndTheLastWindowQuits()
    {
        TestSession const session;
        RunProgram([&] {
            QVERIFY(!session.window()->close() && session.window() != nullptr);
            session.play("total=30; missed=3 Return; filepresent");
            session.activate();
            session.play("FileClose"); // no box comes
            QVERIFY(session.window() == nullptr);
            QTimer::singleShot(0, qApp, [&] { // the program still runs
                session.activate("Window1");
                session.play("FileClose");
            });
        });
        QVERIFY(session.window("Window1") == nullptr && RuntimeExit() == 0);
    }

    void quitLogoutAndSignalsEndTheProgram()
    {
        TestSession const session;
        RunProgram([&] { session.play("FileQuit"); });
        QEvent logOut(QEvent::Quit);
        RunProgram([&] { QCoreApplication::sendEvent(qApp, &logOut); });
        if (!kIsWindows) {
            HandleSignals(QCoreApplication::quit); // once more, past the handlers of Qt Test
            RunProgram([] { QCOMPARE(std::raise(SIGTERM), 0); });
        }
        QVERIFY(session.window() != nullptr);
        QCOMPARE(RuntimeExit(), 0);
        std::string fault;
        QPrinter printer;
        QCOMPARE(ShowMessageBox({"Really?", "", true}), kNo); // what comes now is not shown
        QVERIFY(!ShowFileDialog({true, "", "", "", ""}));
        QVERIFY(!ShowPrintDialog(printer, 1, fault));
        QCOMPARE(QCoreApplication::applicationName() + QGuiApplication::desktopFileName(),
                 "gradeloomgradeloom"_L1);
        QVERIFY(!QGuiApplication::quitOnLastWindowClosed());
        QCOMPARE(QGuiApplication::windowIcon().availableSizes(), QList{QSize(16, 16)});
    }

    void exceptionsInHandlersAreReported()
    {
        TestSession session;
        RunProgram([&] {
            for (QString const& reason : {u"paper jam"_s, u"an unknown error"_s}) {
                session.expectBox("Gradeloom could not finish this step: " + reason.toStdString() +
                                  ". The data you have entered so far has been kept.");
                session.form().correct().TextChange = [&reason](TextField&) {
                    reason == "paper jam"_L1 ? throw std::runtime_error("paper jam") : throw 1;
                };
                session.play("write correct=; total=30; correct=5");
                session.expectFields("total=30 correct=5");
            }
            session.play("FileClose");
        });
        QCOMPARE(RuntimeExit(), 0);
    }

public slots:
    void open(QUrl const& page) { openedPage_ = page; }

private:
    QUrl openedPage_;
};

GRADELOOM_TEST(WindowsAndMenu)
#include "test_windows_and_menu.moc"
