#include "tests/harness.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <optional>

namespace {

constexpr char const* kQuestion = "Delete <b>all</b>?";

/// The box on the screen. Its timer runs while it takes no key.
struct OpenBox {
    QMessageBox& box;
    QTimer& quiet;

    /// Ends the wait for a quiet keyboard at once.
    void letTimePass() const { quiet.stop(); }
    void press(std::vector<QKeyCombination> const& keys) const
    {
        for (QKeyCombination const key : keys) {
            QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
        }
    }
};

/// Shows a box and does this with it; returns its answer, or nothing if it is still open then.
template <class Act>
std::optional<int> AnswerTo(bool isQuestion, Act const& act)
{
    bool isOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        static_cast<void>(QTest::qWaitForWindowActive(box));
        act(OpenBox{*box, *box->findChild<QTimer*>()});
        isOpen = box->isVisible();
        if (isOpen) {
            box->done(0);
        }
    });
    int const answer = ShowMessageBox({kQuestion, "", isQuestion});
    return isOpen ? std::nullopt : std::optional(answer);
}

// clang-format off
struct OpenKeys {
    char const* name;
    bool isQuestion;
    std::vector<QKeyCombination> keys;
    std::optional<int> answer;
} const kOpenKeys[] = {
    {"Return answers No", true, {Qt::Key_Return}, kNo}, {"Escape answers No", true, {Qt::Key_Escape}, kNo},
    {"Space presses No", true, {Qt::Key_Space}, kNo}, {"Alt+Y answers Yes", true, {Qt::AltModifier | Qt::Key_Y}, kYes},
    {"Tab, then Return answers Yes", true, {Qt::Key_Tab, Qt::Key_Return}, kYes},
    {"an arrow, then Space too", true, {Qt::Key_Left, Qt::Key_Space}, kYes},
    {"plain letters answer nothing", true, {Qt::Key_Y, Qt::Key_N, Qt::Key_5}, std::nullopt},
    {"Return closes a notice", false, {Qt::Key_Return}, kNo}, {"Escape closes a notice", false, {Qt::Key_Escape}, kNo},
    {"O closes no notice", false, {Qt::Key_O}, std::nullopt},
};

struct TypedKeys {
    char const* name;
    std::vector<QKeyCombination> keys;
} const kTyped[] = {
    {"Return", {Qt::Key_Return}}, {"Escape", {Qt::Key_Escape}}, {"an Alt letter", {Qt::AltModifier | Qt::Key_Y}},
    {"Tab, then Return", {Qt::Key_9, Qt::Key_Tab, Qt::Key_Return}}, {"Tab, then Space", {Qt::Key_Tab, Qt::Key_Space}},
    {"arrows, then Return", {Qt::Key_Left, Qt::Key_Left, Qt::Key_Return}}, {"a modifier", {Qt::Key_Shift}},
};
// clang-format on

} // namespace

/// What answers a message box of the desktop: only what is meant for it.
class Boxes final : public QObject {
    Q_OBJECT

private slots:
    void keysAnswerOnceTheKeyboardHasBeenQuiet_data() { AddRows(kOpenKeys); }
    void keysAnswerOnceTheKeyboardHasBeenQuiet()
    {
        QFETCH(OpenKeys const*, row);
        auto const answer = AnswerTo(row->isQuestion, [row](OpenBox const& open) {
            open.letTimePass();
            open.press(row->keys);
            bool const isByAlt = row->keys.back().keyboardModifiers() != Qt::NoModifier;
            QTest::qWait(isByAlt ? 150 : 0); // such a press shows for a moment
        });
        QVERIFY(answer == row->answer);
    }

    void keysMeantForAFieldAnswerNothingAndStartTheWaitAnew_data() { AddRows(kTyped); }
    void keysMeantForAFieldAnswerNothingAndStartTheWaitAnew()
    {
        QFETCH(TypedKeys const*, row);
        auto const answer = AnswerTo(true, [row](OpenBox const& open) {
            QCOMPARE(open.quiet.interval(), 500);
            open.quiet.setInterval(60'000);
            QTest::qWait(200);
            int const before = open.quiet.remainingTime();
            open.press(row->keys);
            QVERIFY(open.quiet.remainingTime() > before);
            QCOMPARE(QApplication::focusWidget(), open.box.defaultButton());
        });
        QVERIFY(answer == std::nullopt);
    }

    void aHeldKeyAnswersNothing()
    {
        auto const answer = AnswerTo(true, [](OpenBox const& open) {
            open.letTimePass();
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(open.box.defaultButton(), &held);
        });
        QVERIFY(answer == std::nullopt);
    }

    void theTimeStampsOfTheKeysCount()
    {
        auto const pressAt = [](QWidget* receiver, quint64 time) {
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
            key.setTimestamp(time);
            QCoreApplication::sendEvent(receiver, &key);
        };
        QWidget field;
        pressAt(&field, 10'000); // the program was busy when the next key came
        for (quint64 const time : {10'499U, 11'000U}) {
            auto const answer = AnswerTo(true, [&](OpenBox const& open) {
                open.letTimePass();
                pressAt(open.box.defaultButton(), time);
            });
            QVERIFY(answer == (time < 10'500 ? std::nullopt : std::optional(kNo)));
        }
    }

    void theMouseAnswersAtOnceAndTheTextIsPlain()
    {
        QVERIFY(AnswerTo(true, [](OpenBox const& open) {
                    QCOMPARE(open.box.textFormat(), Qt::PlainText);
                    QTest::mouseClick(open.box.button(QMessageBox::Yes), Qt::LeftButton);
                }) == kYes);
        QVERIFY(AnswerTo(true, [](OpenBox const& open) { open.box.close(); }) == kNo);
    }

    void theNoticeComesBeforeTheNextKeyAndLosesNone()
    {
        TestSession const session;
        session.setFields("aplusmin=95");
        session.play("focus amax");
        TestSession::useRealDoors();
        int boxes = 0;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&boxes] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr && box == QApplication::activeWindow()) { // no mouse clicks into it before
                ++boxes;
                QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
            }
        });
        closer.start(5);
        QTest::keyClick(session.widget("amax"), Qt::Key_Tab);
        QTest::keyClicks(session.widget("amin"), u"94"_s); // the first key finds the notice still to come
        QTRY_COMPARE(boxes, 1);
        session.activate();
        session.expectFields("aplusmin=95 amax=94 amin=94");
        QCOMPARE(QApplication::focusWidget(), session.widget("amin"));
        QTest::qWait(20); // no second notice when the window has come back
        QCOMPARE(boxes, 1);
        session.setFields("aplusmin=96");
        session.play("focus amax");
        QTest::keyClick(session.widget("amax"), Qt::Key_Tab);
        QTest::keyClick(session.widget("amin"), Qt::Key_Tab); // goes first, so that it selects the next field
        QTRY_COMPARE(boxes, 2);
        QCOMPARE(session.field("aminusmax")->selectedText(), "92"_L1);
    }
};

GRADELOOM_TEST(Boxes)
#include "test_boxes.moc"
