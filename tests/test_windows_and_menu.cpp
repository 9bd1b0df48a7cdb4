#include "frame/startup.h"
#include "platform/runtime.h"
#include "tests/harness.h"

#include <QMenu>
#include <QTimer>

#include <stdexcept>

namespace {

constexpr char const* kLists = "ListBox1 ListBox2 ListBox5";

// clang-format off
struct { char const* points; char const* rows; char const* last; } const kCharts[] = {
    {"\n",    "1 0 0",  "0,NaN"}, {"words\n", "1 0 0",   "0,NaN"}, {"-0.5\n", "1 0 0",  "0,NaN"}, {"-3\n",    "0 0 0",    ""},
    {"1\n",   "2 0 0",  "-1,0"},  {"1e2\n",   "2 0 0",   "-1,0"},  {"12.9\n", "13 0 0", "-12,0"}, {"35\n",    "36 0 0",   "-35,0"},
    {"36\n",  "36 1 0", "-36,0"}, {"70\n",    "36 35 0", "-70,0"}, {"71\n",   "36 35 1", "-71,0"}, {"105.9\n", "36 35 35", "-105,0"},
};
// clang-format on

/// What is on in the visible menus of a window, with the shortcuts; "|" stands for a menu.
QString ItemsOn(TestSession const& session, char const* window = "mainscreen")
{
    session.activate(window);
    QString shown;
    for (QAction const* const item : session.menuItems()) {
        if (item->isVisible() && item->isEnabled() && !item->isSeparator()) {
            QString const shortcut = item->shortcut().toString().remove(u"Ctrl"_s);
            shown += item->menu() != nullptr ? u"|"_s : item->objectName() + shortcut + u' ';
        }
    }
    return shown;
}

} // namespace

/// The three windows, the chart of the Presenter, and the menu bar that serves them all.
class WindowsAndMenu final : public QObject {
    Q_OBJECT

private slots:
    void tabWalksTheFormAndBack()
    {
        TestSession const session;
        QString walked;
        for (int i = 0; i < 44; ++i) {
            walked += QApplication::focusWidget()->objectName() + u' ';
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(walked.startsWith(
            "total missed correct PushButton1 percentage lettergrade lastmissed aplusmax"_L1));
        QVERIFY(walked.endsWith("fgrade ListBox1 numstudents EditField1 PushButton4 total "_L1));
    }

    void commandsAreOnByTheWindowInFrontAndTheFocusedField()
    {
        TestSession const session;
        session.chooseCommand("filepresent");
        session.activate();
        session.chooseCommand("About");
        QCOMPARE(ItemsOn(session, "Author"), "|FileClose+W FileQuit+Q |"_L1);
        QCOMPARE(ItemsOn(session, "Window1"),
                 "|FileClose+W FileQuit+Q |EditCut+X EditCopy+C EditPaste+V EditClear "_L1);
        QString const file =
            u"|FileOpen+O filepresent+T FileClose+W FileExport+E FileReset+R FilePrint+P FileQuit+Q |"_s;
        QCOMPARE(ItemsOn(session), file + "EditUndo+Z EditCut+X EditCopy+C EditPaste+V EditClear About "_L1);
        session.widget("percentage")->setFocus();
        QCOMPARE(ItemsOn(session), file + "EditUndo+Z EditCopy+C About "_L1);
        session.widget("ListBox1")->setFocus();
        QCOMPARE(ItemsOn(session), file + "EditUndo+Z About "_L1);
        session.chooseCommand("About"); // the same window again; its button acts as the mouse goes down
        QWidget* const button = session.widget("PushButton1", "Author");
        QTest::keyClick(button, Qt::Key_Return);
        QTest::mouseClick(button, Qt::RightButton);
        QVERIFY(session.openedAddress.empty());
        QTest::mousePress(button, Qt::LeftButton);
        QVERIFY(session.openedAddress.rfind("https://", 0) == 0);
    }

    void theChartSplitsIntoThreePairsAndStartsAnewAtEachPress()
    {
        TestSession session;
        session.chooseCommand("filepresent");
        for (auto const& [points, rows, last] : kCharts) {
            session.type("EditField1", points, "Window1");
            QString counts;
            QString lastRow;
            for (QString const& list : session.texts(kLists, "Window1").split(u'|')) {
                counts += QString::number(list.isEmpty() ? 0 : list.count(u';') + 1) + u' ';
                lastRow = list.isEmpty() ? lastRow : list.split(u';').last();
            }
            QCOMPARE(counts + lastRow, rows + u" "_s + last);
        }
        session.expectBox("This feature of Gradeloom can only present 105 percentages.");
        session.type("EditField1", "106\n", "Window1");
        QCOMPARE(session.texts("EditField1 ListBox6 ListBox7 " + QByteArray(kHistoryLists), "Window1"),
                 "106|||||||"_L1);
        session.type("EditField1", "80\n", "Window1");
        for (auto const row :
             {"0,100;-1,98.75;"_L1, ";-35,56.25|-36,55;"_L1, ";-70,12.5|-71,11.25;"_L1, ";-80,0"_L1}) {
            QVERIFY2(session.texts(kLists, "Window1").contains(row), row.data());
        }
    }

    void thePresenterIsOneWindowThatOutlivesTheMainOne()
    {
        TestSession const session;
        for (bool const byDesktop : {true, false}) {
            session.chooseCommand("filepresent");
            session.activate("Window1");
            QCOMPARE(session.texts("EditField1 ListBox1", "Window1"), "|"_L1);
            session.type("EditField1", "1\n", "Window1");
            QMainWindow* const presenter = session.window("Window1");
            session.activate();
            QTest::keyClick(session.window(), Qt::Key_T, Qt::ControlModifier);
            QTRY_COMPARE(QApplication::activeWindow(), presenter);
            QCOMPARE(session.texts("EditField1 ListBox1", "Window1"), "1|0,100;-1,0"_L1);
            byDesktop ? static_cast<void>(presenter->close()) : session.chooseCommand("FileClose");
            QVERIFY(session.window("Window1") == nullptr);
            session.activate();
        }
        QVERIFY(!session.window()->close() && session.window() != nullptr); // only its command closes it
        session.enterScores("30", {"3"});
        session.chooseCommand("filepresent");
        session.activate();
        QTest::keyClick(session.window(), Qt::Key_W, Qt::ControlModifier); // no box comes
        QVERIFY(session.window() == nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        session.activate("Window1");
        session.type("EditField1", "1", "Window1");
        session.click("PushButton1", "Window1");
        QCOMPARE(session.texts("ListBox1", "Window1"), "0,100;-1,0"_L1);
    }

    void theProgramRunsUntilItsLastWindowClosesAndSurvivesAnException()
    {
        TestSession session;
        QTimer::singleShot(0, this, [&] {
            session.type("total", "30");
            session.form().correct().TextChange = [](TextField&) { throw std::runtime_error("paper jam"); };
            session.expectBox("Gradeloom could not finish this step: paper jam");
            session.type("correct", "5");
            QCOMPARE(session.texts("total correct"), "30|5"_L1);
            session.chooseCommand("FileClose");
        });
        _Main();
        QVERIFY(session.window() == nullptr && RuntimeExit() == 0);
    }
};

GRADELOOM_TEST(WindowsAndMenu)
#include "test_windows_and_menu.moc"
