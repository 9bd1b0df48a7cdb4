#include "tests/harness.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr char const* kTooMany = "The number missed should not exceed the total number of points.";
constexpr char const* kState = "numstudents percentage lettergrade lastmissed average EditField1 problem";
constexpr char const* kTallies = "agrade bgrade cgrade dgrade fgrade";
constexpr char const* kHistory = "ListBox1 ListBox2 ListBox3 ListBox4 ListBox5";

} // namespace

/// Taking entries back, starting anew, and the guard of the number of points.
class UndoAndReset final : public QObject {
    Q_OBJECT

private slots:
    void undoStepsBackDownToAnEmptySession()
    {
        Desk desk;
        desk.gradeAll("30", {"3", "4", "30"});
        desk.write("missed", "9");
        QCOMPARE(desk.show(kState), "3|0|F|30|176|58|"_L1);
        desk.choose("EditUndo");
        QCOMPARE(desk.show(kState), "2|86.666|B|4|176|88|"_L1);
        QCOMPARE(desk.show(kTallies), "1|1|||0"_L1);
        QCOMPARE(desk.show(kHistory), "1,90,%;2,86.666,%|3;4|90;88|A-;B|90;176"_L1);
        desk.choose("EditUndo");
        QCOMPARE(desk.show(kState), "1|90|A-|3|90|90|1"_L1);
        QCOMPARE(desk.show("total pointstemp missed correct"), "30|30|9|0"_L1);
        for (int i = 0; i < 2; ++i) { // the first clears; then there is nothing left
            desk.choose("EditUndo");
            QCOMPARE(desk.show(kState), "||||||1"_L1);
            QCOMPARE(desk.show(kTallies) + desk.show(kHistory), "||||||||"_L1);
            QCOMPARE(desk.show("total pointstemp missed correct"), "30|30|9|"_L1);
        }
    }

    void undoWithoutEntriesEmptiesTheNumberCorrectOnlyAfterARefusal()
    {
        Desk desk;
        desk.type("correct", "5");
        desk.choose("EditUndo");
        QCOMPARE(desk.show("correct problem"), "5|"_L1);
        desk.expect("You must enter a positive value");
        desk.grade("7");
        desk.type("total", "30");
        desk.choose("EditUndo");
        QCOMPARE(desk.show("correct missed total problem"), "|7|30|1"_L1);
    }

    void undoAfterARefusalWithOneEntryOnlyArmsTheNextOne()
    {
        Desk desk;
        desk.expect(kTooMany);
        desk.gradeAll("30", {"3", "31"});
        desk.choose("EditUndo");
        QCOMPARE(desk.show(kState), "1|90|A-|3|90|90|1"_L1);
        desk.choose("EditUndo");
        QCOMPARE(desk.show(kState), "||||||1"_L1);
    }

    void anEntryMadeAfterAnUndoIsTakenBackInItsTurn()
    {
        Desk desk;
        desk.gradeAll("30", {"3", "4"});
        desk.choose("EditUndo");
        desk.grade("6");
        QCOMPARE(desk.show(kState), "2|80|B-|6|170|85|"_L1);
        desk.choose("EditUndo");
        desk.choose("EditUndo");
        desk.grade("6");
        QCOMPARE(desk.show(kState), "1|80|B-|6|80|80|1"_L1);
        desk.choose("EditUndo");
        QCOMPARE(desk.show(kState), "||||||1"_L1);
    }

    void aStepBackShowsThePercentageOfTheHistory()
    {
        Desk desk;
        desk.useCorrect(true);
        desk.type("total", "30");
        desk.grade("25", "correct");
        QCOMPARE(desk.show("percentage"), "83.33"_L1);
        desk.grade("0", "correct");
        desk.choose("EditUndo");
        QCOMPARE(desk.show("percentage lastmissed missed correct"), "83.333|5|30|"_L1);
    }

    void bothResetsEmptyTheSession()
    {
        for (bool const byMenu : {false, true}) {
            Desk desk;
            desk.gradeAll("30", {"3", "15"});
            desk.writeAll("missed=31 problem=x fileresetfield=5 foundaproblem=1 amin=80");
            for (int i = 0; i < 2; ++i) { // without entries too; no box comes
                byMenu ? desk.choose("FileReset")
                       : QTest::mouseClick(desk.widget("BevelButton1"), Qt::LeftButton);
                QCOMPARE(desk.show("numstudents percentage lettergrade lastmissed average EditField1"),
                         "|||||"_L1);
                QCOMPARE(desk.show(kTallies) + desk.show(kHistory), "||||||||"_L1);
                QCOMPARE(desk.show("total correct pointstemp"), byMenu ? "||30"_L1 : "||"_L1);
                QCOMPARE(desk.show("missed problem fileresetfield foundaproblem amin"), "31|x|5|1|80"_L1);
            }
            desk.type("total", "40");
            QCOMPARE(desk.show("total"), "40"_L1);
        }
    }

    void changingThePointsUnderEntriesBringsOneNoticeAndTheTextBack()
    {
        Desk desk;
        desk.gradeAll("37.5", {"3"});
        QWidget* const total = desk.widget("total");
        total->setFocus();
        for (Qt::Key const key : {Qt::Key_7, Qt::Key_Backspace}) {
            desk.expect("To change the number of points, you must first reset the current data.");
            QTest::keyClick(total, key);
            QVERIFY(desk.allSeen());
            QCOMPARE(desk.show("total numstudents ListBox1"), "37.5|1|1,91.891,%"_L1);
        }
        QTest::keyClick(total, Qt::Key_Delete); // nothing stands behind the cursor
        QTest::keyClick(total, Qt::Key_A, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(u"37.5"_s);
        desk.choose("EditPaste");
        QCOMPARE(desk.show("total"), "37.5"_L1);
    }
};

GRADELOOM_TEST(UndoAndReset)
#include "test_undo_and_reset.moc"
