#include "platform/message_box.h"
#include "platform/qt/desktop_doors.h"
#include "tests/harness.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QLineEdit* Field(Desk const& desk, char const* name)
{
    return static_cast<QLineEdit*>(desk.widget(name));
}

void Paste(Desk const& desk, QString const& text)
{
    QGuiApplication::clipboard()->setText(text);
    desk.choose("EditPaste");
}

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

void Compose(QLineEdit* field, QString const& preedit, QString const& commit)
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(field, &event);
}

/// Notes the events of a field in their order.
class Notes {
public:
    explicit Notes(TextField& field)
    {
        field.GotFocus = [this](TextField&) { taken_ += u"focus "_s; };
        field.KeyDown = [this](TextField&, std::string const& key) {
            taken_ += QString::fromStdString(key) + u' ';
            return key == "x"; // this one is kept from the field
        };
        field.TextChange = [this](TextField& sender) {
            taken_ += u"text="_s + QString::fromStdString(sender.Text()) + u' ';
        };
    }

    /// What happened since the last call, queued events included.
    QString take()
    {
        QCoreApplication::processEvents();
        return std::exchange(taken_, QString()).trimmed();
    }

private:
    QString taken_;
};

} // namespace

/// What reaches a field and what belongs to the window: keys, focus, changes of a text, the menu's shortcuts.
class KeysAndFields final : public QObject {
    Q_OBJECT

private slots:
    void returnPressesGradeWhereverTheFocusIs()
    {
        Desk const desk;
        int presses = 0;
        desk.form().PushButton1().Action = [&] { ++presses; };
        for (char const* const name : {"total", "correct", "PushButton1", "percentage", "aplusmax",
                                       "PushButton3", "checkcorrect", "ListBox1"}) {
            presses = 0;
            QTest::keyClick(desk.widget(name), Qt::Key_Return);
            QTest::keyClick(desk.widget(name), Qt::Key_Enter, Qt::KeypadModifier);
            QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(desk.widget(name), &heldDown);
            QVERIFY2(presses == 2, name);
        }
    }

    void aClickLeavesTheFocusAndSpacePressesWhatHasIt()
    {
        Desk const desk;
        QWidget* const total = desk.widget("total");
        for (char const* const name : {"PushButton3", "BevelButton1", "checkcorrect"}) {
            QTest::mouseClick(desk.widget(name), Qt::LeftButton);
            QCOMPARE(QApplication::focusWidget(), total);
        }
        QVERIFY(desk.form().checkcorrect().Value());
        QTest::keyClick(desk.widget("checkcorrect"), Qt::Key_Space);
        QVERIFY(!desk.form().checkcorrect().Value());
    }

    void eventsComeInTheOrderFocusKeyText()
    {
        Desk const desk;
        Notes notes(desk.form().missed());
        QLineEdit* const missed = Field(desk, "missed");
        QTest::mouseClick(missed, Qt::LeftButton);
        QTest::keyClicks(missed, u"7x"_s);
        QTest::keyClick(missed, Qt::Key_Home);
        QTest::keyClick(missed, Qt::Key_Delete);
        QCOMPARE(notes.take(), "focus 7 text=7 x Home Del text="_L1);
    }

    void keysOfTheWindowAndTheMenuDoNotReachTheField()
    {
        Desk const desk;
        desk.form().PushButton1().Action = nullptr;
        QLineEdit* const missed = Field(desk, "missed");
        missed->setFocus();
        QCoreApplication::processEvents();
        Notes notes(desk.form().missed());
        for (Qt::Key const key :
             {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_Tab}) {
            QTest::keyClick(missed, key);
        }
        for (Qt::Key const key : {Qt::Key_C, Qt::Key_X, Qt::Key_Z, Qt::Key_R}) {
            QTest::keyClick(missed, key, Qt::ControlModifier);
        }
        QCOMPARE(notes.take(), ""_L1);
    }

    void everyChangeByTheUserIsToldOnce()
    {
        Desk const desk;
        Notes notes(desk.form().missed());
        QLineEdit* const missed = Field(desk, "missed");
        Drop(missed, u"3"_s);
        QCOMPARE(notes.take(), "focus text=3"_L1);
        Paste(desk, u"12"_s);
        QTest::keyClick(missed, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(notes.take(), "text=312 text=31212"_L1);
        Compose(missed, u"9"_s, QString());
        Compose(missed, QString(), u"4"_s);
        QCOMPARE(notes.take(), "text=312124"_L1);
        missed->selectAll();
        QTest::keyClick(missed, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(notes.take(), "text= text=312124"_L1);
        missed->selectAll();
        Paste(desk, u"312124"_s); // leaves the text as it was
        desk.form().missed().Text("5");
        QCOMPARE(notes.take(), ""_L1);
        QVERIFY(missed->cursorPosition() == 1 && !missed->hasSelectedText());
    }

    void theFocusIsToldOnlyWhenItMovesInsideTheWindow()
    {
        Desk const desk;
        Notes notes(desk.form().missed());
        QTest::keyClick(desk.widget("total"), Qt::Key_Tab);
        QCOMPARE(notes.take(), "focus"_L1);
        PlatformDoors().messageBox = ShowMessageBox;
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        MsgBox("a notice");
        desk.activate();
        desk.choose("filepresent");
        desk.activate("Window1");
        desk.activate();
        QTest::mouseClick(desk.widget("PushButton3"), Qt::LeftButton);
        QTest::mouseClick(desk.widget("missed"), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), desk.widget("missed"));
        QCOMPARE(notes.take(), ""_L1);
    }

    void insertedTextIsOneLineOfAnyLength()
    {
        Desk const desk;
        QLineEdit* const total = Field(desk, "total");
        Paste(desk, u"95\n"_s);
        QCOMPARE(total->text(), "95"_L1);
        total->clear();
        Drop(total, u"\r\n1\r\n2\n\n3\r"_s);
        QCOMPARE(total->text(), "1 2  3"_L1);
        total->clear();
        Paste(desk, QString(40000, u'9'));
        QCOMPARE(total->text().size(), 40000);
    }

    void theLimitHoldsForTheUserAlone()
    {
        Desk const desk;
        QLineEdit* const amax = Field(desk, "amax");
        desk.type("amax", "1234");
        QTest::sendKeyEvent(QTest::Click, amax, Qt::Key_4, u"4"_s,
                            Qt::ControlModifier | Qt::AltModifier); // AltGr
        Compose(amax, QString(), u"5"_s);
        Drop(amax, u"6"_s);
        Paste(desk, u"7"_s);
        QCOMPARE(amax->text(), "123"_L1);
        amax->setSelection(1, 1); // what is selected makes room
        Paste(desk, u"789"_s);
        QCOMPARE(amax->text(), "173"_L1);
        amax->selectAll();
        Compose(amax, QString(), u"4567"_s);
        QCOMPARE(amax->text(), "456"_L1);
        desk.form().amax().Text("92.54");
        QTest::keyClick(amax, Qt::Key_Backspace);
        QCOMPARE(amax->text(), "92.5"_L1);
    }

    void undoTakesBackTypingFirstAndThenTheEntry()
    {
        Desk desk;
        desk.gradeAll("30", {"3", "4"});
        QLineEdit* const missed = Field(desk, "missed");
        QTest::keyClicks(missed, u"25"_s);
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.show("missed numstudents"), "|2"_L1);
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.show("missed numstudents"), "|1"_L1);
        QTest::keyClicks(missed, u"25"_s);
        QTest::mouseClick(desk.widget("PushButton2"), Qt::LeftButton); // a button in between
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.show("missed numstudents"), "25|"_L1);
    }

    /// Sends what asks a field whether a key is its own: "end of line" is Ctrl+E on some desktops.
    void noShortcutOfTheMenuIsSwallowedByAField()
    {
        Desk const desk;
        for (char const* const name : {"missed", "percentage"}) {
            for (Qt::Key const key :
                 {Qt::Key_O, Qt::Key_T, Qt::Key_W, Qt::Key_E, Qt::Key_R, Qt::Key_P, Qt::Key_Z}) {
                QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
                QCoreApplication::sendEvent(desk.widget(name), &event);
                QVERIFY2(!event.isAccepted(), QKeySequence(key).toString().toLatin1());
            }
        }
    }

    void tabSelectsAllAndReadOnlyFieldsShowTheStart()
    {
        Desk const desk;
        QLineEdit* const percentage = Field(desk, "percentage");
        desk.write("missed", "12.5");
        desk.write("percentage", "89.497716894");
        QCOMPARE(percentage->toolTip() + QString::number(percentage->cursorPosition()), "89.4977168940"_L1);
        QTest::keyClick(desk.widget("total"), Qt::Key_Tab);
        QCOMPARE(Field(desk, "missed")->selectedText(), "12.5"_L1);
        percentage->setFocus(Qt::TabFocusReason);
        QCOMPARE(percentage->selectedText() + QString::number(percentage->cursorPosition()),
                 "89.4977168940"_L1);
        QTest::keyClicks(percentage, u"5"_s);
        QCOMPARE(percentage->text(), "89.497716894"_L1);
    }

    void clearAndCutTakeTheSelectionAlone()
    {
        Desk const desk;
        desk.type("total", "1234");
        desk.choose("EditClear");
        desk.choose("EditCut");
        Field(desk, "total")->setSelection(1, 1);
        desk.choose("EditClear");
        Field(desk, "total")->setSelection(1, 1);
        desk.choose("EditCut");
        QCOMPARE(desk.show("total") + QGuiApplication::clipboard()->text(), "143"_L1);
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
