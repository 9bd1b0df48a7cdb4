#include "tests/harness.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>

namespace {

constexpr char const* kSmile = "\U0001F642"; // two units of UTF-16

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

/// Records the events of the field for the number missed, in their order. The key x is kept from the field.
class EventLog {
public:
    explicit EventLog(TestSession const& session)
    {
        session.form().PushButton1().Action = nullptr;
        TextField& field = session.form().missed();
        field.GotFocus = [this](TextField&) { events_ += "focus "; };
        field.KeyDown = [this](TextField&, std::string const& key) {
            events_ += key + ' ';
            return key == "x";
        };
        field.TextChange = [this](TextField& sender) { events_ += "text=" + sender.Text() + ' '; };
    }

    /// The events since the last call, those included that were due.
    std::string take()
    {
        QCoreApplication::processEvents();
        return std::exchange(events_, "");
    }

private:
    std::string events_;
};

} // namespace

/// What reaches a field, the window or the menu: keys, focus, changes of a text.
class KeysAndFields final : public QObject {
    Q_OBJECT

private slots:
    void returnAndShortcutsPassEveryControl_data()
    {
        QTest::addColumn<QString>("name");
        for (char const* const name :
             {"total", "correct", "PushButton1", "percentage", "PushButton3", "checkcorrect", "ListBox1"}) {
            QTest::newRow(name) << name;
        }
    }

    void returnAndShortcutsPassEveryControl()
    {
        QFETCH(QString, name);
        TestSession const session;
        int presses = 0;
        session.form().PushButton1().Action = [&] { ++presses; };
        QWidget* const control = session.widget(name);
        QTest::keyClick(control, Qt::Key_Return);
        QTest::keyClick(control, Qt::Key_Enter, Qt::KeypadModifier);
        QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QCoreApplication::sendEvent(control, &heldDown);
        QTest::keyClick(control, Qt::Key_Return, Qt::ControlModifier);
        QTest::keyClick(control, Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(presses, 2);
        for (char const key : "OTWERPZ"_ba) { // as a field is asked whether a key of the menu is its own
            QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
            QCoreApplication::sendEvent(control, &event);
            QVERIFY2(!event.isAccepted(), &key);
        }
    }

    void aKeyIsReportedBeforeItsChangeAndCanBeKeptFromTheField()
    {
        TestSession const session;
        EventLog log(session);
        QLineEdit* const missed = session.field("missed");
        QTest::mouseClick(missed, Qt::LeftButton);
        QTest::keyClicks(missed, u"7x"_s);
        QTest::keyClick(missed, Qt::Key_Home);
        QTest::keyClick(missed, Qt::Key_Delete);
        QTest::keyClick(missed, Qt::Key_F5);
        QCOMPARE(log.take(), "focus 7 text=7 x Home Del text= F5 ");
    }

    void keysOfTheWindowAndTheMenuAndModifiersAreNotReported()
    {
        TestSession const session;
        EventLog log(session);
        QLineEdit* const missed = session.enterField("missed");
        log.take();
        for (Qt::Key const key : {Qt::Key_C, Qt::Key_X, Qt::Key_R, Qt::Key_Return}) {
            QTest::keyClick(missed, key, Qt::ControlModifier);
        }
        for (Qt::Key const key :
             {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta, Qt::Key_Super_L,
              Qt::Key_Super_R, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Mode_switch,
              Qt::Key_Multi_key, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab}) {
            QTest::sendKeyEvent(QTest::Click, missed, key, QString(), Qt::NoModifier);
        }
        QCOMPARE(log.take(), "");
    }

    void aDropMovesTheFocusFirst()
    {
        TestSession const session;
        EventLog log(session);
        Drop(session.field("missed"), u"3"_s);
        QCOMPARE(log.take(), "focus text=3 ");
        QCOMPARE(QApplication::focusWidget(), session.widget("missed"));
    }

    void eachActIsOneChange()
    {
        TestSession const session;
        EventLog log(session);
        QLineEdit* const missed = session.enterField("missed");
        session.paste("312");
        QTest::keyClick(missed, Qt::Key_V, Qt::ControlModifier);
        SendInputMethod(missed, "", "9"); // still in composition
        QCOMPARE(log.take(), "focus text=312 text=312312 ");
        missed->selectAll();
        QTest::keyClick(missed, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(missed, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(log.take(), "text= text=312312 ");
    }

    void whatLeavesTheTextAsItWasIsNoChange()
    {
        TestSession const session;
        EventLog log(session);
        QLineEdit* const missed = session.enterField("missed");
        session.form().missed().Text("312");
        missed->selectAll();
        session.paste("312");
        session.form().missed().Text("5");
        QCOMPARE(log.take(), "focus ");
    }

    void theFocusIsNotGainedAnewByBoxesMenusWindowsOrButtons()
    {
        TestSession const session;
        EventLog log(session);
        session.enterField("missed");
        log.take();
        TestSession::useRealMessageBoxes();
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        MsgBox("a notice");
        session.activate();
        session.chooseCommand("filepresent");
        session.activate("Window1");
        session.activate();
        session.click("PushButton3");
        session.click("checkcorrect");
        session.click("missed");
        QCOMPARE(log.take(), "");
    }

    void tabSelectsAllAndAWriteEndsWithTheCursorBehindTheText()
    {
        TestSession const session;
        QTest::keyClick(session.enterField("lastmissed"), Qt::Key_Tab);
        QCOMPARE(session.field("aplusmax")->selectedText(), "100"_L1);
        session.form().aplusmax().Text("99.5");
        QVERIFY(session.field("aplusmax")->cursorPosition() == 4 &&
                !session.field("aplusmax")->hasSelectedText());
        session.click("ListBox1");
        QTest::keyClick(session.enterField("aplusmax"), Qt::Key_Tab);
        QVERIFY(!session.field("aplusmax")->hasSelectedText()); // nothing stays selected behind the focus
    }

    void insertedTextIsOneLine()
    {
        TestSession const session;
        Drop(session.field("total"), u"\r\n1\r\n2\n\n3\u2028\r"_s);
        session.expectFields("total=1 2  3");
        session.field("total")->selectAll();
        session.paste("4\u2029"
                      "5\n");
        session.expectFields("total=4 5");
    }

    void theContextMenuPastesOneLineToo()
    {
        TestSession const session;
        QLineEdit* const total = session.enterField("total");
        QGuiApplication::clipboard()->setText("6\n7\n");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), total->mapToGlobal(QPoint(2, 2)));
        QCoreApplication::sendEvent(total, &event);
        QWidget* const menu = QApplication::activePopupWidget();
        for (QAction* const action : menu->actions()) {
            action->text().endsWith("Ctrl+V"_L1) ? action->trigger() : void();
        }
        menu->close();
        session.expectFields("total=6 7");
    }

    void theLimitHoldsForTheUserAlone()
    {
        TestSession const session;
        QLineEdit* const amax = session.field("amax");
        session.type("amax", "1234");
        QTest::sendKeyEvent(QTest::Click, amax, Qt::Key_4, u"4"_s,
                            Qt::ControlModifier | Qt::AltModifier); // AltGr
        SendInputMethod(amax, "5");
        Drop(amax, u"6"_s);
        session.paste("7");
        session.expectFields("amax=123");
        amax->setSelection(1, 1); // what is selected makes room
        session.paste("789");
        session.expectFields("amax=173");
        amax->selectAll();
        SendInputMethod(amax, "4567");
        session.expectFields("amax=456");
        session.form().amax().Text("92.54");
        QTest::keyClick(amax, Qt::Key_Backspace);
        session.expectFields("amax=92.5");
    }

    void aCharacterOfTwoUnitsIsNotSplit()
    {
        TestSession const session;
        session.enterField("amax")->selectAll();
        session.paste("12"_L1 + QString::fromUtf8(kSmile));
        session.expectFields("amax=12");
        session.field("amax")->selectAll();
        session.paste("1"_L1 + QString::fromUtf8(kSmile));
        session.expectFields("amax=1"_L1 + QString::fromUtf8(kSmile));
    }

    void theTextCommandsWorkOnTheFocusedField()
    {
        TestSession const session;
        session.enterField("amin")->selectAll();
        session.chooseCommand("EditCut");
        session.expectFields("amin=");
        QCOMPARE(QGuiApplication::clipboard()->text(), "93"_L1);
        session.enterField("bmin")->selectAll();
        session.chooseCommand("EditCopy");
        session.chooseCommand("EditClear");
        session.chooseCommand("EditClear"); // nothing is selected now
        session.expectFields("bmin=");
        QCOMPARE(QGuiApplication::clipboard()->text(), "83"_L1);
    }

    void aResultKeepsItsText()
    {
        TestSession const session;
        session.enterScores("30", {"3"});
        QLineEdit* const result = session.enterField("percentage");
        QGuiApplication::clipboard()->setText("5");
        result->selectAll();
        QTest::keyClick(result, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(result, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(result, Qt::Key_Delete);
        Drop(result, u"5"_s);
        SendInputMethod(result, "5");
        session.expectFields("percentage=90");
    }

    void aLongResultShowsItsStartAndIsItsTooltip()
    {
        TestSession const session;
        QString const nines(60, u'9');
        session.setFields("lastmissed=" + nines);
        QLineEdit const* const result = session.field("lastmissed");
        QVERIFY(result->cursorPosition() == 0 && result->toolTip() == nines);
        session.enterField("lastmissed");
        QVERIFY(result->cursorPosition() == 0 && result->selectedText() == nines);
        session.enterField("total");
        QVERIFY(result->cursorPosition() == 0 && !result->hasSelectedText());
        session.setFields("lastmissed=9");
        QVERIFY(result->toolTip().isEmpty());
    }

    void undoTakesBackTypingFirstAndThenTheEntry()
    {
        TestSession const session;
        session.enterScores("30", {"3", "4"});
        QTest::keyClicks(session.widget("missed"), u"25"_s);
        QTest::keyClick(session.widget("missed"), Qt::Key_Z, Qt::ControlModifier);
        session.expectFields("missed= numstudents=2");
        QTest::keyClick(session.widget("missed"), Qt::Key_Z, Qt::ControlModifier);
        session.expectFields("missed= numstudents=1");
    }

    void aButtonOrACommandEndsWhatUndoTakesBackOfTyping_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("button") << false;
        QTest::newRow("menu") << true;
    }

    void aButtonOrACommandEndsWhatUndoTakesBackOfTyping()
    {
        QFETCH(bool, byMenu);
        TestSession const session;
        session.enterScores("30", {"3", "4"});
        QTest::keyClicks(session.widget("missed"), u"25"_s);
        session.field("missed")->setSelection(2, -1);
        byMenu ? session.chooseCommand("FileExport") : session.click("PushButton2"); // both cancelled
        QVERIFY(session.field("missed")->cursorPosition() == 1 &&
                session.field("missed")->selectedText() == "5"_L1);
        QTest::keyClick(session.widget("missed"), Qt::Key_Z, Qt::ControlModifier);
        session.expectFields("missed=25 numstudents=1");
    }

    void spacePressesTheFocusedButtonAndSeveralEntriesCanBeSelected()
    {
        TestSession const session;
        session.setFields("amin=1");
        QTest::keyClick(session.widget("PushButton3"), Qt::Key_Space);
        session.expectFields("amin=93");
        QTest::keyClick(session.widget("checkcorrect"), Qt::Key_Space);
        QVERIFY(session.form().checkcorrect().Value());
        auto const mode = [&](char const* list) { return session.widget<QTableView>(list)->selectionMode(); };
        QVERIFY(mode("ListBox1") == QTableView::ExtendedSelection &&
                mode("ListBox2") == QTableView::SingleSelection);
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
