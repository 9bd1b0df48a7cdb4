#include "frame/startup.h"
#include "platform/application.h"
#include "platform/runtime.h"
#include "tests/harness.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTimer>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
struct { char const* name; char const* text; QRect place; } const kControls[] = {
    {"total",        "",                      {137,   6,  67, 22}}, {"StaticText6", "Last Number Missed :", {228,   7, 135,  20}},
    {"BevelButton1", "Reset",                 {164, 111,  52, 17}}, {"checkcorrect", "Use Number Correct",  {  8, 111, 144,  20}},
    {"EditField1",   "",                      {370, 140,  40, 21}}, {"ListBox1",    "",                     {548,  29, 123, 135}},
    {"fgrade",       "",                      {496, 143,  40, 21}}, {"StaticText7", "A+ ",                  { 13, 214,  30,  20}},
    {"dminusmin",    "60",                    {447, 396,  58, 23}}, {"StaticText30", "to ",                 {406, 397,  26,  21}},
    {"PushButton2",  "Save Grading Scale...", {517, 285, 158, 20}}, {"pointstemp",  "",                     { 28, 508,  33,  18}},
};
// clang-format on

constexpr auto kTabOrder =
    "total missed correct PushButton1 percentage lettergrade lastmissed aplusmax aplusmin PushButton2 amax "
    "amin "
    "aminusmax aminusmin bplusmax bplusmin bmax bmin bminusmax bminusmin cplusmax cplusmin cmax cmin "
    "cminusmax "
    "cminusmin dplusmax dplusmin dmax dmin dminusmax dminusmin PushButton3 checkcorrect agrade bgrade cgrade "
    "dgrade fgrade ListBox1 numstudents EditField1 PushButton4 total "_L1;

/// The visible items of the File and Edit menus that are on, with their shortcuts.
QString ItemsOn(Desk const& desk, char const* window = "mainscreen")
{
    desk.activate(window);
    QString shown;
    for (QAction const* const menu : desk.window(window)->menuBar()->actions()) {
        shown += menu->isVisible() ? u"|"_s : QString();
        for (QAction const* const item : menu->isVisible() ? menu->menu()->actions() : QList<QAction*>()) {
            if (item->isVisible() && item->isEnabled() && !item->isSeparator()) {
                shown += item->objectName() + item->shortcut().toString().remove(u"Ctrl"_s) + u' ';
            }
        }
    }
    return shown;
}

} // namespace

/// The three windows, the form of the main one, and the menu bar that serves them all.
class WindowsAndMenu final : public QObject {
    Q_OBJECT

private slots:
    void theFormStandsAsDrawn()
    {
        Desk const desk;
        QWidget const* const content = desk.window()->centralWidget();
        QStringList hidden;
        auto const all = content->findChildren<QWidget*>(QRegularExpression(u"^(?!qt_).+"_s));
        for (QWidget const* const control : all) {
            hidden += control->isVisible() ? QStringList() : QStringList(control->objectName());
        }
        QCOMPARE(all.size(), 98);
        QCOMPARE(hidden.join(u' '),
                 "average ListBox2 ListBox3 ListBox4 ListBox5 problem fileresetfield pointstemp "
                 "foundaproblem"_L1);
        for (auto const& [name, text, place] : kControls) {
            QWidget const* const control = desk.widget(name);
            QVERIFY2(QRect(control->mapTo(content, QPoint()), control->size()) == place, name);
            QVERIFY2(desk.show(name) == QLatin1String(text), name);
        }
        QVERIFY(content->size() == QSize(705, 438) && desk.window()->windowTitle() == "Gradeloom X"_L1);
        QVERIFY(desk.widget("PushButton4")->toolTip().startsWith("\"Save Current Settings\" will cause"_L1));
        QVERIFY(desk.widget("PushButton1")->font().bold() && !desk.widget("PushButton3")->font().bold());
        QCOMPARE(desk.widget("aplusmax")->accessibleName(), "A+ maximum"_L1);
    }

    void tabWalksTheFormInItsOrder()
    {
        Desk const desk;
        QString walked;
        for (qsizetype i = 0; i < kTabOrder.count(' '); ++i) {
            walked += QApplication::focusWidget()->objectName() + u' ';
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(walked, kTabOrder);
    }

    void commandsAreOnByTheWindowInFrontAndTheFocusedField()
    {
        Desk const desk;
        desk.choose("filepresent");
        desk.activate();
        desk.choose("About");
        QCOMPARE(ItemsOn(desk, "Author"), "|FileClose+W FileQuit+Q |"_L1);
        QCOMPARE(ItemsOn(desk, "Window1"),
                 "|FileClose+W FileQuit+Q |EditCut+X EditCopy+C EditPaste+V EditClear "_L1);
        QString const file =
            u"|FileOpen+O filepresent+T FileClose+W FileExport+E FileReset+R FilePrint+P FileQuit+Q |"_s;
        QCOMPARE(ItemsOn(desk), file + "EditUndo+Z EditCut+X EditCopy+C EditPaste+V EditClear About "_L1);
        desk.widget("percentage")->setFocus();
        QCOMPARE(ItemsOn(desk), file + "EditUndo+Z EditCopy+C About "_L1);
        desk.widget("ListBox1")->setFocus();
        QCOMPARE(ItemsOn(desk), file + "EditUndo+Z About "_L1);
    }

    void askingAgainBringsTheSamePresenterAndAfterClosingANewOne()
    {
        Desk const desk;
        for (bool const byDesktop : {true, false}) {
            desk.choose("filepresent");
            desk.activate("Window1");
            QCOMPARE(desk.show("EditField1 ListBox1", "Window1"), "|"_L1);
            desk.type("EditField1", "1", "Window1");
            QTest::keyClick(desk.widget("EditField1", "Window1"), Qt::Key_Return);
            QMainWindow* const presenter = desk.window("Window1");
            desk.activate();
            QTest::keyClick(desk.window(), Qt::Key_T, Qt::ControlModifier);
            QTRY_COMPARE(QApplication::activeWindow(), presenter);
            QCOMPARE(desk.show("EditField1 ListBox1", "Window1"), "1|0,100;-1,0"_L1);
            byDesktop ? static_cast<void>(presenter->close()) : desk.choose("FileClose");
            QVERIFY(desk.window("Window1") == nullptr);
            desk.activate();
        }
    }

    void onlyItsCommandClosesTheMainWindowAndThePresenterGoesOn()
    {
        Desk const desk;
        QVERIFY(!desk.window()->close() && desk.window() != nullptr);
        desk.gradeAll("30", {"3"});
        desk.choose("filepresent");
        desk.activate();
        QTest::keyClick(desk.window(), Qt::Key_W, Qt::ControlModifier); // no box comes
        QVERIFY(desk.window() == nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        desk.activate("Window1");
        desk.type("EditField1", "1", "Window1");
        QTest::mouseClick(desk.widget("PushButton1", "Window1"), Qt::LeftButton);
        QCOMPARE(desk.show("ListBox1", "Window1"), "0,100;-1,0"_L1);
    }

    void theAboutButtonOpensThePageAsTheMouseGoesDown()
    {
        Desk desk;
        desk.choose("About");
        desk.activate();
        desk.choose("About");
        QWidget* const button = desk.widget("PushButton1", "Author");
        QTest::keyClick(button, Qt::Key_Return);
        QTest::keyClick(button, Qt::Key_Space);
        QTest::mouseClick(button, Qt::RightButton);
        QVERIFY(desk.browsed.empty());
        QTest::mousePress(button, Qt::LeftButton);
        QVERIFY(desk.browsed.rfind("https://", 0) == 0);
        QCOMPARE(desk.show("StaticText1", "Author"), "Gradeloom 1.2.4\n\nby\n\nOrrin Vale\n\n"_L1);
    }

    void theProgramRunsUntilItsLastWindowClosesAndSurvivesAnException()
    {
        Desk desk;
        QTimer::singleShot(0, this, [&] {
            Application const& app = *_RuntimeAppObject();
            QVERIFY(app.MajorVersion == 1 && app.MinorVersion == 2 && app.BugVersion == 0 &&
                    app.StageCode == 3);
            QVERIFY(app.LongVersion == "Gradeloom 1.2.2" && app.ShortVersion == "Gradeloom X" &&
                    app.PackageInfo == "Gradeloom 1.2.2 Orrin Vale" && app.NonReleaseVersion == 0);
            desk.type("total", "30");
            desk.form().correct().TextChange = [](TextField&) { throw std::runtime_error("paper jam"); };
            desk.expect("Gradeloom could not finish this step: paper jam");
            desk.type("correct", "5");
            QCOMPARE(desk.show("total correct"), "30|5"_L1);
            desk.choose("FileClose");
        });
        _Main();
        QVERIFY(desk.window() == nullptr && RuntimeExit() == 0);
    }
};

GRADELOOM_TEST(WindowsAndMenu)
#include "test_windows_and_menu.moc"
