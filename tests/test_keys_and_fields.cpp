#include "tests/harness.h"

namespace {

// clang-format off
struct LoggedActs {
    char const* name;
    char const* acts;
    char const* events; // of the field for the number missed; the key x is kept from it
} const kEvents[] = {
    {"a key comes before its change", "missed; keys 7x; key Home; key Del; key F5; key Esc",
     "focus 7 text=7 x Home Del text= F5 Esc "},
    {"keys of the window and the menu are not the field's", "focus missed; key Ctrl+C; key Ctrl+X; key Ctrl+R; "
     "key Ctrl+Return; key Return; key Enter; key Shift+Tab; key Tab; key Tab", "focus focus "},
    {"Tab with Ctrl is the field's", "focus missed; key Ctrl+Tab; key Ctrl+Shift+Tab", "focus Ctrl+Tab Ctrl+Shift+Tab "},
    {"a cut and its undoing are changes", "write missed=3; focus missed; EditCut; key Ctrl+Z", "focus text= text=3 "},
    {"the same text is no change, each other paste is one", "write missed=312; focus missed; paste 312; key Ctrl+V; "
     "write missed=5", "focus text=312312 "},
    {"a button leaves the focus where it is", "focus missed; PushButton3; checkcorrect; missed", "focus "},
    {"a drop moves the focus first", "drop missed \r\n3\n4", "focus text=3 4 "},
    {"AltGr types and Meta does not", "focus missed; key Meta+X; key Ctrl+Alt+7", "focus 7 text=7 "},
    {"a text is a key once it is committed", "focus missed; compose 9; commit x; commit 7", "focus x 7 text=7 "},
    {"an assistive program's text is a key", "edit missed x; edit missed 7", "focus x 7 text=7 "},
    {"a list without rows takes focus and keys", "focus missed; ListBox1; key Down; key End; missed", "focus focus "},
};

/// Modifiers and the like, and the first of the switches of the layout, dead keys and media keys.
constexpr Qt::Key kSilentKeys[] = {
    Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_Hyper_L,
    Qt::Key_Hyper_R, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Direction_L, Qt::Key(),
};

Scenario const kActs[] = {
    {"Tab starts at the points, goes round and selects all", "keys 3; key Tab; keys 4; focus PushButton4; "
     "key Tab; key 5", {}, "total=5 missed=4"},
    {"typing replaces the number correct that was written", "total=40; focus correct; keys 38; key Return; checkcorrect; "
     "keys 38; key Return", {}, "percentage=95 numstudents=2"},
    {"a click into a field selects what was written there", "total=40; missed=4 Return; checkcorrect; correct; keys 38; "
     "key Return", {}, "percentage=95 numstudents=2"},
    {"the next click places the cursor", "amin; amin; keys 5", {}, "amin=935"},
    {"a text that is put back has the cursor behind it", "total=40; missed=3 Return; focus bmax; key 5; keys 6",
     {{kDeletesData, kNo}, {kDeletesData, kNo}}, "bmax=876"},
    {"a pasted text becomes one line", "focus total; paste \r\n1\r\n2\n\n3\u2028\u2029" "4\n", {}, "total=1 2  3  4"},
    {"the limit holds for keys", "amax=1234", {}, "amax=123"},
    {"the limit holds for an input method", "focus amax; commit 4567; commit 8", {}, "amax=456"},
    {"the limit holds for a drop", "amax=456; drop amax 7", {}, "amax=456"},
    {"the limit holds for an assistive program", "edit amax 123456", {}, "amax=123"},
    {"a selection makes room for a paste", "amax=123; key Home; key Right; key Shift+Right; paste 789", {}, "amax=173"},
    {"a character of two units is not split", "focus amax; paste 12\U0001F642", {}, "amax=12"},
    {"a character of two units fits", "focus amax; paste 1\U0001F642", {}, "amax=1\U0001F642"},
    {"the limit is not the program's", "write amax=92.54; focus amax; key End; key Backspace", {}, "amax=92.5"},
    {"Cut and Paste move a text", "focus amin; EditCut; focus bmin; EditPaste", {}, "amin= bmin=93"},
    {"Copy, Clear and Shift+Insert", "focus bmin; EditCopy; EditClear; focus total; key Shift+Ins", {},
     "bmin= total=83"},
    {"Clear needs a selection", "focus bmin; key Home; EditClear", {}, "bmin=83"},
    {"a result takes no drop, key or paste", "write percentage=90; drop percentage 5; focus percentage; key Ctrl+X; "
     "key Del; key 5; paste 6; key Ctrl+V", {}, "percentage=90"},
    {"what the user may not change is restored", "total=40; missed=4 Return; edit percentage 77; edit average 77; "
     "edit problem 77", {}, "percentage=90 average=90 problem=1"},
    {"a command leaves the cursor", "missed=25; key Left; FileReset; keys 7", {}, "missed=275"},
    {"a command leaves a selection from the left", "missed=25; key Home; key Shift+Right; FileReset; key Esc; "
     "key Shift+Right; keys 7", {}, "missed=7"},
    {"a command leaves a selection from the right", "missed=25; key Shift+Left; FileReset; key Esc; key Shift+Left; "
     "keys 7", {}, "missed=7"},
};

constexpr char const* kTwoEntries = "total=40; missed=3 Return; missed=4 Return; ";
Scenario const kUndone[] = {
    {"typing goes first, then the entry", "keys 25; key Ctrl+Z; key Ctrl+Z", {}, "missed= numstudents=1"},
    {"typing after a command goes first", "keys 2; PushButton2; keys 5; key Ctrl+Z", {}, "missed=2 numstudents=2"},
    {"a clearing after a command goes first", "keys 25; PushButton2; focus total; focus missed; EditClear; key Ctrl+Z; "
     "key Ctrl+Z", {}, "missed=25 numstudents=1"},
    {"no typing from before a button", "keys 25; PushButton2; key Ctrl+Z", {}, "missed=25 numstudents=1"},
    {"after a refusal an entry by the second key", "missed=45 Return; key Ctrl+C; key Ctrl+Z; key Ctrl+Z",
     {{kTooManyMissed}}, "numstudents=1"},
    {"an entry after new typing", "missed=45 Return; keys 5; key Ctrl+Z; key Ctrl+Z", {{kTooManyMissed}}, "numstudents=1"},
    {"no entry without a whole point", "write total=0.4; missed=0 Return; key Ctrl+Z", {{kNeedsPoints}}, "numstudents=2"},
    {"no entry after a text is restored", "focus bmax; key 5; key Ctrl+Z", {{kDeletesData, kNo}}, "numstudents=2"},
    {"no entry after the points are", "focus total; key 5; key Ctrl+Z", {{kPointsAreFixed}}, "numstudents=2"},
    {"an entry after another command", "missed=45 Return; PushButton2; key Ctrl+Z", {{kTooManyMissed}}, "numstudents=1"},
    {"an entry after the focus moved", "missed=45 Return; focus lastmissed; key Ctrl+Z", {{kTooManyMissed}},
     "numstudents=1"},
};
// clang-format on

/// Records the events of the field for the number missed.
void RecordEvents(TestSession const& session, std::string& events)
{
    session.form().PushButton1().Action = nullptr;
    TextField& field = session.form().missed();
    field.GotFocus = [&events](TextField&) { events += "focus "; };
    field.KeyDown = [&events](TextField&, std::string const& key) {
        events += key + ' ';
        return key == "x";
    };
    field.TextChange = [&events](TextField& sender) { events += "text=" + sender.Text() + ' '; };
}

} // namespace

/// What reaches a field, the window or the menu: keys, focus, changes of a text.
class KeysAndFields final : public QObject {
    Q_OBJECT

private slots:
    void returnAndShortcutsWorkInEveryControl()
    {
        TestSession const session;
        for (char const* const name :
             {"total", "correct", "PushButton1", "percentage", "PushButton3", "checkcorrect", "ListBox1"}) {
            int presses = 0;
            session.form().PushButton1().Action = [&presses] { ++presses; };
            session.play(u"write total=30; focus %1; key Return; key Enter"_s.arg(QLatin1String(name)));
            session.play("key Ctrl+Return; key Alt+Return; key Ctrl+R");
            QVERIFY2(presses == 2 && session.text("total").isEmpty(), name);
        }
    }

    void eachActRaisesItsEventsInOrder_data() { AddRows(kEvents); }
    void eachActRaisesItsEventsInOrder()
    {
        QFETCH(LoggedActs const*, row);
        std::string events;
        TestSession const session;
        RecordEvents(session, events);
        session.play(row->acts);
        QCoreApplication::processEvents(); // for those that are due
        QCOMPARE(events, row->events);
    }

    void silentKeysRaiseNoKeyDown()
    {
        std::string events;
        TestSession const session;
        session.play("focus missed");
        QLineEdit* const missed = session.field("missed");
        RecordEvents(session, events);
        for (Qt::Key const key : kSilentKeys) {
            QTest::sendKeyEvent(QTest::Press, missed, key, QString(), Qt::NoModifier);
        }
        QTest::sendKeyEvent(QTest::Press, missed, Qt::Key_Help, QString(), Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Press, missed, Qt::Key_unknown, u"x"_s, Qt::NoModifier); // another script
        QCOMPARE(events, "Help x ");
    }

    void switchingWindowsKeepsTheFocus()
    {
        std::string events;
        TestSession const session;
        RecordEvents(session, events);
        session.play("write missed=5; focus missed; filepresent");
        session.activate("Window1");
        session.activate();
        QCoreApplication::processEvents();
        QCOMPARE(events, "focus ");
        session.activate("Window1");
        session.widget("total")->setFocus(); // behind the other window
        session.activate();
        QVERIFY(!session.field("missed")->hasSelectedText());
    }

    void typingAndPastingFollowTheFieldsRules_data() { AddRows(kActs); }
    void typingAndPastingFollowTheFieldsRules() { CheckScenario(); }

    void undoKeyUndoesTypingFirst_data() { AddRows(kUndone); }
    void undoKeyUndoesTypingFirst() { CheckScenario(kTwoEntries); }

    void wideResultsAreCondensedOrShowTheirStartAndATooltip()
    {
        TestSession const session;
        QLineEdit const* const result = session.field("percentage");
        QString const nines(60, u'9');
        session.setFields("percentage=90");
        int const normal = result->font().stretch();
        session.setFields("percentage=89.49772");
        QVERIFY(result->font().stretch() < normal && result->font().stretch() >= 70);
        session.setFields("percentage=" + nines);
        QVERIFY(result->cursorPosition() == 0 && result->toolTip() == nines);
        session.play("focus percentage");
        QVERIFY(result->cursorPosition() == 0 && result->selectedText() == nines);
        session.play("key Right");
        QVERIFY(result->cursorPosition() == 0 && !result->hasSelectedText());
        session.play("key Shift+Right; focus total");
        QVERIFY(result->cursorPosition() == 0 && !result->hasSelectedText());
        int const needed = result->fontMetrics().horizontalAdvance(nines) + 8; // with its border
        for (int const width : {needed, needed - 1}) {
            session.widget("percentage")->resize(width, 21);
            session.setFields("percentage=" + nines);
            QCOMPARE(result->toolTip(), width < needed ? nines : QString());
        }
        session.setFields("percentage=1");
        QVERIFY(result->font().stretch() == normal && result->toolTip().isEmpty());
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
