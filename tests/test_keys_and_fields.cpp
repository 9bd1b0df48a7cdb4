#include "tests/harness.h"

#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>

namespace {

void Drop(QLineEdit* field, QString const& text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(QPoint(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(2, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &enter);
    QCoreApplication::sendEvent(field, &drop);
    QCoreApplication::processEvents();
}

/// Notes the events of a field in their order.
class Notes {
public:
    explicit Notes(TextField& field)
    {
        field.GotFocus = [this](TextField&) { taken_ += "focus "; };
        field.KeyDown = [this](TextField&, std::string const& key) {
            taken_ += key + ' ';
            return key == "x"; // this one is kept from the field
        };
        field.TextChange = [this](TextField& sender) { taken_ += "text=" + sender.Text() + ' '; };
    }

    /// What happened since the last call, queued events included.
    std::string take()
    {
        QCoreApplication::processEvents();
        return std::exchange(taken_, "");
    }

private:
    std::string taken_;
};

} // namespace

/// What reaches a field, the window, the menu or a message box: keys, focus, changes of a text.
class KeysAndFields final : public QObject {
    Q_OBJECT

private slots:
    void returnAndTheShortcutsWorkWhereverTheFocusIs()
    {
        TestSession const session;
        int presses = 0;
        session.form().PushButton1().Action = [&] { ++presses; };
        for (char const* const name :
             {"total", "correct", "PushButton1", "percentage", "PushButton3", "checkcorrect", "ListBox1"}) {
            presses = 0;
            QTest::keyClick(session.widget(name), Qt::Key_Return);
            QTest::keyClick(session.widget(name), Qt::Key_Enter, Qt::KeypadModifier);
            QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(session.widget(name), &heldDown);
            QVERIFY2(presses == 2, name);
            for (char const key : "OTWERPZ"_ba) { // as a field is asked whether a key of the menu is its own
                QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
                QCoreApplication::sendEvent(session.widget(name), &event);
                QVERIFY2(!event.isAccepted(), name);
            }
        }
    }

    void everyActOfTheUserIsToldOnceAndInItsOrder()
    {
        TestSession const session;
        session.form().PushButton1().Action = nullptr;
        Notes notes(session.form().missed());
        auto* const missed = session.widget<QLineEdit>("missed");
        QTest::mouseClick(missed, Qt::LeftButton);
        QTest::keyClicks(missed, u"7x"_s);
        QTest::keyClick(missed, Qt::Key_Home);
        QTest::keyClick(missed, Qt::Key_Delete);
        QCOMPARE(notes.take(), "focus 7 text=7 x Home Del text= ");
        for (Qt::Key const key : {Qt::Key_C, Qt::Key_X, Qt::Key_R}) {
            QTest::keyClick(missed, key, Qt::ControlModifier);
        }
        for (Qt::Key const key :
             {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_Tab}) {
            QTest::keyClick(missed, key); // those of the window and of the menu are not the field's
        }
        QCOMPARE(notes.take(), "");
        Drop(missed, u"3"_s);
        QCOMPARE(notes.take(), "focus text=3 ");
        session.paste("12");
        QTest::keyClick(missed, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(notes.take(), "text=312 text=31212 ");
        SendInputMethod(missed, "", "9");
        SendInputMethod(missed, "4");
        QCOMPARE(notes.take(), "4 text=312124 ");
        missed->selectAll();
        QTest::keyClick(missed, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(notes.take(), "text= text=312124 ");
        missed->selectAll();
        session.paste("312124"); // leaves the text as it was
        session.form().missed().Text("5");
        session.widget("missed")->setFocus();
        QCOMPARE(notes.take(), "");
        session.useRealMessageBoxes();
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        MsgBox("a notice");
        session.activate();
        session.chooseCommand("filepresent");
        session.activate("Window1");
        session.activate();
        session.click("PushButton3");
        session.click("missed");
        QCOMPARE(notes.take(), ""); // the focus has not moved inside the window
    }

    void insertedTextIsOneLineAndTheLimitHoldsForTheUserAlone()
    {
        TestSession const session;
        Drop(session.widget<QLineEdit>("total"), u"\r\n1\r\n2\n\n3\r"_s);
        QCOMPARE(session.texts("total"), "1 2  3"_L1);
        auto* const amax = session.widget<QLineEdit>("amax");
        session.type("amax", "1234");
        QTest::sendKeyEvent(QTest::Click, amax, Qt::Key_4, u"4"_s,
                            Qt::ControlModifier | Qt::AltModifier); // AltGr
        SendInputMethod(amax, "5");
        Drop(amax, u"6"_s);
        session.paste("7");
        QCOMPARE(amax->text(), "123"_L1);
        amax->setSelection(1, 1); // what is selected makes room
        session.paste("789");
        QCOMPARE(amax->text(), "173"_L1);
        amax->selectAll();
        SendInputMethod(amax, "4567");
        QCOMPARE(amax->text(), "456"_L1);
        session.form().amax().Text("92.54");
        QTest::keyClick(amax, Qt::Key_Backspace);
        QCOMPARE(amax->text(), "92.5"_L1);
    }

    void undoTakesBackTypingFirstAndThenTheEntry()
    {
        TestSession const session;
        session.enterScores("30", {"3", "4"});
        auto const undo = [&] {
            QTest::keyClick(session.widget("missed"), Qt::Key_Z, Qt::ControlModifier);
            return session.texts("missed numstudents");
        };
        QTest::keyClicks(session.widget("missed"), u"25"_s);
        QCOMPARE(undo(), "|2"_L1);
        QCOMPARE(undo(), "|1"_L1);
        QTest::keyClicks(session.widget("missed"), u"25"_s);
        session.click("PushButton2"); // a button in between
        QCOMPARE(undo(), "25|"_L1);
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
