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

constexpr int kStayedOpen = -1;

/// Shows a box on the desktop and does this with it. Gives what it answered.
template <class Act>
int Answer(bool question, Act const& act)
{
    bool stayed = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        static_cast<void>(QTest::qWaitForWindowActive(box));
        act(*box);
        stayed = box->isVisible();
        if (stayed) {
            box->reject();
        }
    });
    int const answer = ShowMessageBox({"Delete <b>all</b>?", "", question});
    return stayed ? kStayedOpen : answer;
}

struct {
    bool question, heldDown;
    int answer;
    std::vector<Qt::Key> keys;
} const kKeys[] = {
    {true,  false, kNo,         {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space} },
    {true,  false, kStayedOpen, {Qt::Key_Y, Qt::Key_N, Qt::Key_J, Qt::Key_5, Qt::Key_Backspace}},
    {true,  true,  kStayedOpen, {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_Y}     },
    {false, false, kNo,         {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}                },
    {false, false, kStayedOpen, {Qt::Key_O}                                                    },
};

} // namespace

/// What reaches a field, the window, the menu or a message box: keys, focus, changes of a text.
class KeysAndFields final : public QObject {
    Q_OBJECT

private slots:
    void returnAndTheShortcutsWorkWhereverTheFocusIs()
    {
        Desk const desk;
        int presses = 0;
        desk.form().PushButton1().Action = [&] { ++presses; };
        for (char const* const name :
             {"total", "correct", "PushButton1", "percentage", "PushButton3", "checkcorrect", "ListBox1"}) {
            presses = 0;
            QTest::keyClick(desk.widget(name), Qt::Key_Return);
            QTest::keyClick(desk.widget(name), Qt::Key_Enter, Qt::KeypadModifier);
            QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(desk.widget(name), &heldDown);
            QVERIFY2(presses == 2, name);
            for (char const key : "OTWERPZ"_ba) { // as a field is asked whether a key of the menu is its own
                QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
                QCoreApplication::sendEvent(desk.widget(name), &event);
                QVERIFY2(!event.isAccepted(), name);
            }
        }
    }

    void everyActOfTheUserIsToldOnceAndInItsOrder()
    {
        Desk const desk;
        desk.form().PushButton1().Action = nullptr;
        Notes notes(desk.form().missed());
        auto* const missed = desk.widget<QLineEdit>("missed");
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
        desk.paste("12");
        QTest::keyClick(missed, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(notes.take(), "text=312 text=31212 ");
        Compose(missed, "", "9");
        Compose(missed, "4");
        QCOMPARE(notes.take(), "text=312124 ");
        missed->selectAll();
        QTest::keyClick(missed, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(notes.take(), "text= text=312124 ");
        missed->selectAll();
        desk.paste("312124"); // leaves the text as it was
        desk.form().missed().Text("5");
        desk.widget("missed")->setFocus();
        QCOMPARE(notes.take(), "");
        PlatformDoors().messageBox = ShowMessageBox;
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        MsgBox("a notice");
        desk.activate();
        desk.choose("filepresent");
        desk.activate("Window1");
        desk.activate();
        desk.press("PushButton3");
        desk.press("missed");
        QCOMPARE(notes.take(), ""); // the focus has not moved inside the window
    }

    void insertedTextIsOneLineAndTheLimitHoldsForTheUserAlone()
    {
        Desk const desk;
        Drop(desk.widget<QLineEdit>("total"), u"\r\n1\r\n2\n\n3\r"_s);
        QCOMPARE(desk.show("total"), "1 2  3"_L1);
        auto* const amax = desk.widget<QLineEdit>("amax");
        desk.type("amax", "1234");
        QTest::sendKeyEvent(QTest::Click, amax, Qt::Key_4, u"4"_s,
                            Qt::ControlModifier | Qt::AltModifier); // AltGr
        Compose(amax, "5");
        Drop(amax, u"6"_s);
        desk.paste("7");
        QCOMPARE(amax->text(), "123"_L1);
        amax->setSelection(1, 1); // what is selected makes room
        desk.paste("789");
        QCOMPARE(amax->text(), "173"_L1);
        amax->selectAll();
        Compose(amax, "4567");
        QCOMPARE(amax->text(), "456"_L1);
        desk.form().amax().Text("92.54");
        QTest::keyClick(amax, Qt::Key_Backspace);
        QCOMPARE(amax->text(), "92.5"_L1);
    }

    void undoTakesBackTypingFirstAndThenTheEntry()
    {
        Desk const desk;
        desk.gradeAll("30", {"3", "4"});
        auto const undo = [&] {
            QTest::keyClick(desk.widget("missed"), Qt::Key_Z, Qt::ControlModifier);
            return desk.show("missed numstudents");
        };
        QTest::keyClicks(desk.widget("missed"), u"25"_s);
        QCOMPARE(undo(), "|2"_L1);
        QCOMPARE(undo(), "|1"_L1);
        QTest::keyClicks(desk.widget("missed"), u"25"_s);
        desk.press("PushButton2"); // a button in between
        QCOMPARE(undo(), "25|"_L1);
    }

    void onlyDeliberateKeysAndClicksAnswerABox()
    {
        for (auto const& [question, heldDown, answer, keys] : kKeys) {
            for (Qt::Key const key : keys) {
                QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
                auto const press = [&held, isHeld = heldDown, sent = key](QMessageBox& box) {
                    isHeld ? static_cast<void>(qApp->sendEvent(box.defaultButton(), &held))
                           : QTest::keyClick(box.defaultButton(), sent);
                };
                QCOMPARE(Answer(question, press), answer);
            }
        }
        auto const alt = [](QMessageBox& box) {
            QTest::keyClick(&box, Qt::Key_Y, Qt::AltModifier); // pressed for a moment
            static_cast<void>(QTest::qWaitFor([&] { return !box.isVisible(); }));
        };
        QCOMPARE(Answer(true, alt), kYes);
        QCOMPARE(Answer(true, [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }), kYes);
        QCOMPARE(Answer(true, [](QMessageBox& box) { box.close(); }), kNo);
        QCOMPARE(Answer(true, [](QMessageBox& box) { QCOMPARE(box.textFormat(), Qt::PlainText); }),
                 kStayedOpen);
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
