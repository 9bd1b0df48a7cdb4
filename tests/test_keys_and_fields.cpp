#include "tests/harness.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>

namespace {

// clang-format off
struct LoggedActs {
    char const* name;
    char const* acts;
    char const* events; // of the field for the number missed; the key x is kept from it
} const kEvents[] = {
    {"a key comes before its change", "missed; keys 7x; key Home; key Del; key F5", "focus 7 text=7 x Home Del text= F5 "},
    {"keys of the window and the menu are not the field's", "focus missed; key Ctrl+C; key Ctrl+X; key Ctrl+R; "
     "key Ctrl+Return; key Return; key Enter; key Shift+Tab; key Tab; key Tab", "focus focus "},
    {"each paste is one change", "focus missed; paste 312; key Ctrl+V", "focus text=312 text=312312 "},
    {"a cut and its taking back are changes", "write missed=3; focus missed; EditCut; key Ctrl+Z", "focus text= text=3 "},
    {"the same text is no change", "write missed=312; focus missed; paste 312; write missed=5", "focus "},
    {"a button leaves the focus where it is", "focus missed; PushButton3; checkcorrect; missed", "focus "},
    {"a list takes the focus", "focus missed; ListBox1; missed", "focus focus "},
};

Scenario const kActs[] = {
    {"Tab selects all", "focus lastmissed; key Tab; key 5", {}, "aplusmax=5"},
    {"a write ends with the cursor behind its text", "focus total; write total=12; keys 3", {}, "total=123"},
    {"a pasted text becomes one line", "focus total; paste \r\n1\r\n2\n\n3\u2028\u2029" "4\n", {}, "total=1 2  3  4"},
    {"the limit holds for keys", "amax=1234", {}, "amax=123"},
    {"the limit holds for AltGr", "amax=123; key Ctrl+Alt+4", {}, "amax=123"},
    {"the limit holds for a paste", "amax=12; paste 789", {}, "amax=127"},
    {"what is selected makes room", "amax=123; key Home; key Right; key Shift+Right; paste 789", {}, "amax=173"},
    {"a character of two units is not split", "focus amax; paste 12\U0001F642", {}, "amax=12"},
    {"a character of two units fits", "focus amax; paste 1\U0001F642", {}, "amax=1\U0001F642"},
    {"the limit is not the program's", "write amax=92.54; focus amax; key End; key Backspace", {}, "amax=92.5"},
    {"other fields have no limit", "amin=1234567890", {}, "amin=1234567890"},
    {"Cut and Paste move a text", "focus amin; EditCut; focus bmin; EditPaste", {}, "amin= bmin=93"},
    {"Copy copies and Clear deletes", "focus bmin; EditCopy; EditClear; focus total; EditPaste", {}, "bmin= total=83"},
    {"Clear needs a selection", "focus bmin; key Home; EditClear", {}, "bmin=83"},
    {"a result takes no paste", "write percentage=90; focus total; paste 5; key Ctrl+A; key Ctrl+C; focus percentage; "
     "key Ctrl+V", {}, "percentage=90"},
    {"a result takes no cut and no key", "write percentage=90; focus percentage; key Ctrl+X; key Del; key 5", {},
     "percentage=90"},
    {"Space presses the focused button", "write amin=1; focus PushButton3; key Space", {}, "amin=93"},
    {"Ctrl+Z takes back typing first", "total=30; missed=3 Return; missed=4 Return; keys 25; key Ctrl+Z", {},
     "missed= numstudents=2"},
    {"then Ctrl+Z takes back the entry", "total=30; missed=3 Return; missed=4 Return; keys 25; key Ctrl+Z; key Ctrl+Z", {},
     "missed= numstudents=1"},
    {"a button ends what is taken back", "total=30; missed=3 Return; missed=4 Return; keys 25; PushButton2; key Ctrl+Z", {},
     "missed=25 numstudents=1"},
    {"a command ends what is taken back", "total=30; missed=3 Return; missed=4 Return; keys 25; FileExport; key Ctrl+Z", {},
     "missed=25 numstudents=1"},
};
// clang-format on

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

/// Records the events of the field for the number missed.
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

    /// The events so far, those included that are due.
    std::string events() const
    {
        QCoreApplication::processEvents();
        return events_;
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

    void eventsComeInTheirOrderOneForEachAct_data() { AddRows(kEvents); }
    void eventsComeInTheirOrderOneForEachAct()
    {
        QFETCH(LoggedActs const*, row);
        TestSession const session;
        EventLog const log(session);
        session.play(row->acts);
        QCOMPARE(log.events(), std::string(row->events));
    }

    void modifiersAloneAreNoKeys()
    {
        TestSession const session;
        EventLog const log(session);
        QLineEdit* const missed = session.enterField("missed");
        for (Qt::Key const key :
             {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta, Qt::Key_Super_L,
              Qt::Key_Super_R, Qt::Key_Hyper_L, Qt::Key_Hyper_R, Qt::Key_CapsLock, Qt::Key_NumLock,
              Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_Multi_key}) {
            QTest::sendKeyEvent(QTest::Click, missed, key, QString(), Qt::NoModifier);
        }
        QCOMPARE(log.events(), "focus ");
    }

    void aDropMovesTheFocusFirst()
    {
        TestSession const session;
        EventLog const log(session);
        Drop(session.field("missed"), u"\r\n3\n4"_s);
        QCOMPARE(log.events(), "focus text=3 4 ");
        QCOMPARE(QApplication::focusWidget(), session.widget("missed"));
    }

    void textInCompositionIsNoChange()
    {
        TestSession const session;
        EventLog const log(session);
        SendInputMethod(session.enterField("missed"), "", "9");
        QCOMPARE(log.events(), "focus ");
    }

    void boxesAndOtherWindowsLeaveTheFocusWhereItIs()
    {
        TestSession const session;
        EventLog const log(session);
        session.enterField("missed");
        TestSession::useRealMessageBoxes();
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        MsgBox("a notice");
        session.activate();
        session.chooseCommand("filepresent");
        session.activate("Window1");
        session.activate();
        QCOMPARE(log.events(), "focus ");
    }

    void whatIsTypedPastedOrTakenBackStands_data() { AddRows(kActs); }
    void whatIsTypedPastedOrTakenBackStands() { CheckScenario(); }

    void nothingStaysSelectedBehindTheFocus()
    {
        TestSession const session;
        QLineEdit const* const field = session.enterField("aplusmax");
        QVERIFY(field->hasSelectedText());
        session.enterField("total");
        QVERIFY(!field->hasSelectedText());
    }

    void aCommandLeavesTheSelection()
    {
        TestSession const session;
        QLineEdit* const missed = session.enterField("missed");
        for (auto const& [start, length, cursor] : {
                 std::tuple(2, -1, 1), {0, 1, 1}
        }) {
            QTest::keyClicks(missed, u"25"_s);
            missed->setSelection(start, length);
            session.chooseCommand("FileReset");
            QVERIFY(missed->cursorPosition() == cursor && missed->selectedText().size() == 1);
        }
    }

    void theLimitHoldsForDropsAndInputMethods()
    {
        TestSession const session;
        QLineEdit* const amax = session.enterField("amax");
        amax->selectAll();
        SendInputMethod(amax, "4567");
        session.expectFields("amax=456");
        Drop(amax, u"6"_s);
        SendInputMethod(amax, "5");
        session.expectFields("amax=456");
    }

    void aResultTakesNoDrop()
    {
        TestSession const session;
        Drop(session.field("percentage"), u"5"_s);
        session.expectFields("percentage=");
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

    void onlyTheShownListLetsSeveralRowsBeSelected()
    {
        TestSession const session;
        auto const mode = [&](char const* list) { return session.widget<QTableView>(list)->selectionMode(); };
        QVERIFY(mode("ListBox1") == QTableView::ExtendedSelection &&
                mode("ListBox2") == QTableView::SingleSelection);
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
            action->text() == "&Paste"_L1 ? action->trigger() : void();
        }
        menu->close();
        session.expectFields("total=6 7");
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
