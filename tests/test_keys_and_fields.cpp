#include "tests/harness.h"

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
    {"a drop moves the focus first", "drop missed \r\n3\n4", "focus text=3 4 "},
    {"a text in composition is no change", "focus missed; compose 9", "focus "},
    {"a committed text is a key", "focus missed; commit x; commit 7", "focus x 7 text=7 "},
    {"a list takes the focus", "focus missed; ListBox1; missed", "focus focus "},
};

struct Key {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    char const* text;
};
Key const kKeys[] = {
    {Qt::Key_5, {}, "5"}, {Qt::Key_Left, {}, ""}, {Qt::Key_Escape, {}, "\x1b"}, {Qt::Key_F5, {}, ""},
    {Qt::Key_unknown, {}, "q"}, {Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@"}, // another script; AltGr
};
Key const kNoKeys[] = {
    {Qt::Key_Shift, Qt::ShiftModifier, ""}, {Qt::Key_Control, {}, ""}, {Qt::Key_Alt, {}, ""}, {Qt::Key_AltGr, {}, ""},
    {Qt::Key_Meta, {}, ""}, {Qt::Key_Super_L, {}, ""}, {Qt::Key_Super_R, {}, ""}, {Qt::Key_Hyper_L, {}, ""},
    {Qt::Key_Hyper_R, {}, ""}, {Qt::Key_CapsLock, {}, ""}, {Qt::Key_NumLock, {}, ""}, {Qt::Key_ScrollLock, {}, ""},
    {Qt::Key_Mode_switch, {}, ""}, {Qt::Key_Multi_key, {}, ""}, {Qt::Key_Dead_Acute, {}, ""}, {Qt::Key_Kana_Lock, {}, ""},
    {Qt::Key_Eisu_toggle, {}, ""}, {Qt::Key_Hangul, {}, ""}, {Qt::Key_VolumeUp, {}, ""},
    {Qt::Key_unknown, Qt::AltModifier, ""}, {Qt::Key_X, Qt::AltModifier, "x"}, {Qt::Key_X, Qt::MetaModifier, "x"},
};

Scenario const kActs[] = {
    {"Tab selects all", "focus lastmissed; key Tab; key 5", {}, "aplusmax=5"},
    {"a write ends with the cursor behind its text", "focus total; write total=12; keys 3", {}, "total=123"},
    {"a pasted text becomes one line", "focus total; paste \r\n1\r\n2\n\n3\u2028\u2029" "4\n", {}, "total=1 2  3  4"},
    {"the limit holds for keys", "amax=1234", {}, "amax=123"},
    {"the limit holds for AltGr", "amax=123; key Ctrl+Alt+4", {}, "amax=123"},
    {"the limit holds for a paste", "amax=12; paste 789", {}, "amax=127"},
    {"the limit holds for an input method", "focus amax; commit 4567; commit 8", {}, "amax=456"},
    {"the limit holds for a drop", "amax=456; drop amax 7", {}, "amax=456"},
    {"the limit holds for an assistive program", "edit amax 123456", {}, "amax=123"},
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
    {"a result takes no drop", "drop percentage 5", {}, "percentage="},
    {"what the user may not change is put back", "total=40; missed=4 Return; edit percentage 77; edit average 77; "
     "edit problem 77", {}, "percentage=90 average=90 problem=1"},
    {"Space presses the focused button", "write amin=1; focus PushButton3; key Space", {}, "amin=93"},
};

constexpr char const* kTwoEntries = "total=40; missed=3 Return; missed=4 Return; ";
Scenario const kUndone[] = {
    {"typing goes first", "keys 25; key Ctrl+Z", {}, "missed= numstudents=2"},
    {"then the entry", "keys 25; key Ctrl+Z; key Ctrl+Z", {}, "missed= numstudents=1"},
    {"no typing from before a button", "keys 25; PushButton2; key Ctrl+Z", {}, "missed=25 numstudents=1"},
    {"no typing from before a command", "keys 25; FileExport; key Ctrl+Z", {}, "missed=25 numstudents=1"},
    {"no entry at once after a refusal", "missed=45 Return; key Ctrl+Z", {{kTooManyMissed}}, "numstudents=2"},
    {"an entry by the second key", "missed=45 Return; key Ctrl+Z; key Ctrl+Z", {{kTooManyMissed}}, "numstudents=1"},
    {"no entry without points", "write total=0; missed= Return; key Ctrl+Z", {{kNeedsPoints}}, "numstudents=2"},
    {"no entry after a text is put back", "focus bmax; key 5; key Ctrl+Z", {{kDeletesData, kNo}}, "numstudents=2"},
    {"no entry after the points are", "focus total; key 5; key Ctrl+Z", {{kPointsAreFixed}}, "numstudents=2"},
    {"an entry by the menu item", "missed=45 Return; EditUndo", {{kTooManyMissed}}, "numstudents=1"},
    {"an entry after another command", "missed=45 Return; PushButton2; key Ctrl+Z", {{kTooManyMissed}}, "numstudents=1"},
    {"an entry after the focus moved", "missed=45 Return; focus lastmissed; key Ctrl+Z", {{kTooManyMissed}},
     "numstudents=1"},
    {"an entry when what is put back is left", "focus bmax; key 5; focus lastmissed; key Ctrl+Z", {{kDeletesData, kNo}},
     "numstudents=1"},
};
// clang-format on

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
    [[nodiscard]] std::string events() const
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
    void returnAndShortcutsPassEveryControl()
    {
        TestSession const session;
        int presses = 0;
        session.form().PushButton1().Action = [&] { ++presses; };
        for (char const* const name :
             {"total", "correct", "PushButton1", "percentage", "PushButton3", "checkcorrect", "ListBox1"}) {
            presses = 0;
            QWidget* const control = session.widget(name);
            QTest::keyClick(control, Qt::Key_Return);
            QTest::keyClick(control, Qt::Key_Enter, Qt::KeypadModifier);
            QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(control, &heldDown);
            QTest::keyClick(control, Qt::Key_Return, Qt::ControlModifier);
            QTest::keyClick(control, Qt::Key_Return, Qt::AltModifier);
            QVERIFY2(presses == 2, name);
            for (char const key : "OTWERPZ"_ba) { // as a field is asked whether a key of the menu is its own
                QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
                QCoreApplication::sendEvent(control, &event);
                QVERIFY2(!event.isAccepted(), name);
            }
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

    void onlyAKeyThatDoesSomethingRaisesKeyDown()
    {
        TestSession const session;
        QLineEdit* const missed = session.enterField("missed");
        auto const raises = [&](Key const& pressed) {
            bool isRaised = false;
            session.form().missed().KeyDown = [&](TextField&, std::string const&) { return isRaised = true; };
            QKeyEvent event(QEvent::KeyPress, pressed.key, pressed.modifiers, QLatin1String(pressed.text));
            QCoreApplication::sendEvent(missed, &event);
            return isRaised;
        };
        for (Key const& key : kKeys) {
            QVERIFY2(raises(key), qPrintable(QKeySequence(key.key).toString()));
        }
        for (Key const& key : kNoKeys) {
            QVERIFY2(!raises(key), qPrintable(QKeySequence(key.key).toString()));
        }
    }

    void boxesAndOtherWindowsLeaveTheFocusWhereItIs()
    {
        TestSession const session;
        EventLog const log(session);
        session.play("focus missed");
        TestSession::useRealDoors();
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        MsgBox("a notice");
        session.activate();
        session.chooseCommand("filepresent");
        session.activate("Window1");
        session.activate();
        QCOMPARE(log.events(), "focus ");
    }

    void whatIsTypedOrPastedStands_data() { AddRows(kActs); }
    void whatIsTypedOrPastedStands() { CheckScenario(); }

    void theUndoKeyTakesBackWhatIsMeant_data() { AddRows(kUndone); }
    void theUndoKeyTakesBackWhatIsMeant() { CheckScenario(kTwoEntries); }

    void aCommandLeavesTheSelection()
    {
        TestSession const session;
        QLineEdit* const missed = session.enterField("missed");
        for (int const length : {1, -1}) { // from the left or from the right, with the cursor behind the 2
            session.type("missed", "25");
            missed->setSelection(length < 0 ? 2 : 0, length);
            session.chooseCommand("FileReset");
            QVERIFY(missed->cursorPosition() == 1 && missed->selectedText().size() == 1);
        }
    }

    void aLongResultShowsItsStartAndIsItsTooltip()
    {
        TestSession const session;
        QString const nines(60, u'9');
        session.setFields("lastmissed=" + nines);
        QLineEdit const* const result = session.field("lastmissed");
        QVERIFY(result->cursorPosition() == 0 && result->toolTip() == nines);
        session.play("focus lastmissed");
        QVERIFY(result->cursorPosition() == 0 && result->selectedText() == nines);
        session.play("focus total");
        QVERIFY(result->cursorPosition() == 0 && !result->hasSelectedText());
        session.setFields("lastmissed=9");
        QVERIFY(result->toolTip().isEmpty());
    }
};

GRADELOOM_TEST(KeysAndFields)
#include "test_keys_and_fields.moc"
