#include "tests/harness.h"

#include <QAccessible>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

int bells = 0;

/// Shows a box and does this with it and with its timer, which runs while it takes no key. Returns the
/// answer, or nothing if the box is still open then.
std::optional<int> AnswerTo(bool isQuestion, auto const& act)
{
    bool isOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        static_cast<void>(QTest::qWaitForWindowActive(box));
        QCOMPARE(box->text(), "Delete <b>all</b>?"_L1);
        QCOMPARE(box->icon(), isQuestion ? QMessageBox::Question : QMessageBox::Information);
        act(*box, *box->findChild<QTimer*>());
        isOpen = box->isVisible();
        if (isOpen) {
            box->done(0);
        }
    });
    int const answer = ShowMessageBox({"Delete <b>all</b>?", "", isQuestion});
    return isOpen ? std::nullopt : std::optional(answer);
}

/// Presses Return at this time in milliseconds.
void PressAt(quint64 time, QWidget* receiver, bool isHeld)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, isHeld);
    key.setTimestamp(time);
    QCoreApplication::sendEvent(receiver, &key);
}

/// Asks for what an assistive program can ask of the one that has this name: to act or to hold a 7.
void Ask(QAccessibleInterface const& in, QString const& name)
{
    for (int i = 0; i < in.childCount(); ++i) {
        QAccessibleInterface& child = *in.child(i);
        if (child.text(QAccessible::Name) != name) {
            Ask(child, name);
        } else if (child.state().editable) {
            child.setText(QAccessible::Value, u"7"_s);
        } else {
            child.actionInterface()->doAction(child.actionInterface()->actionNames().front());
        }
    }
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
    {"Shift and O close no notice", false, {Qt::Key_Shift, Qt::Key_O}, std::nullopt},
};
// clang-format on

} // namespace

#ifndef Q_OS_WIN
void QApplication::beep() // instead of the toolkit's
{
    ++bells;
}
#endif

/// What answers a message box of the desktop: only what is meant for it.
class Boxes final : public QObject {
    Q_OBJECT

private slots:
    void boxesTakeKeysOnceTheKeyboardIsQuiet_data() { AddRows(kOpenKeys); }
    void boxesTakeKeysOnceTheKeyboardIsQuiet()
    {
        QFETCH(OpenKeys const*, row);
        auto const answer = AnswerTo(row->isQuestion, [row](QMessageBox const& box, QTimer& quiet) {
            QCOMPARE(quiet.interval(), 500);
            quiet.setInterval(60'000);
            for (QKeyCombination const key : row->keys) {
                QTest::qWait(50);
                int const before = quiet.remainingTime();
                QWidget const* const focused = QApplication::focusWidget();
                QTest::keyClick(box.focusWidget(), key.key(), key.keyboardModifiers());
                QVERIFY2(quiet.remainingTime() > before && QApplication::focusWidget() == focused,
                         qPrintable(QKeySequence(key).toString()));
            }
            quiet.stop();
            for (QKeyCombination const key : row->keys) {
                QTest::keyClick(box.focusWidget(), key.key(), key.keyboardModifiers());
            }
            bool const isByAlt = row->keys.back().keyboardModifiers() != Qt::NoModifier;
            static_cast<void>(isByAlt &&
                              QTest::qWaitFor([&box] { return box.isHidden(); })); // it shows a while
        });
        QVERIFY(answer == row->answer);
    }

    void keysAreTimedByTheirStampsAndHeldKeysAnswerNothing()
    {
        QWidget field;
        PressAt(10'000, &field, false); // the program was busy when the next key came
        for (quint64 const time : {10'499U, 20'000U, 20'500U}) {
            auto const answer = AnswerTo(true, [&](QMessageBox const& box, QTimer& quiet) {
                quiet.stop();
                PressAt(time, box.defaultButton(), time == 20'000); // the second one is held
            });
            QVERIFY(answer == (time < 20'500 ? std::nullopt : std::optional(kNo)));
        }
    }

    void mouseAnswersAtOnceAndTextIsPlain()
    {
        int const before = bells;
        auto const answer = AnswerTo(true, [](QMessageBox const& box, QTimer const& /*quiet*/) {
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        QVERIFY(answer == kYes);
        QVERIFY(kIsWindows || bells == before + 1);
        QVERIFY(AnswerTo(true, [](QMessageBox& box, QTimer const& /*quiet*/) { box.close(); }) == kNo);
    }

    void assistiveProgramsActBehindNoBox()
    {
        for (char const* const opens :
             {"Open Grading Scale...", "A minimum", "Print...", "Export Results...", "nothing"}) {
            bool const isBox = opens != "nothing"_L1;
            TestSession const session;
            session.play("filepresent");
            session.activate();
            session.play("total=30; missed=3 Return; missed=6 Return");
            PlatformDoors() = realDoors;
            QAccessibleInterface const& all = *QAccessible::queryAccessibleInterface(session.window());
            QString found;
            QWidget const* focused = nullptr;
            QTimer::singleShot(50, qApp, [&] {
                QWidget* const box = QApplication::activeModalWidget();
                focused = session.window()->focusWidget();
                for (char const* const name :
                     {"Number Missed", "Use Number Correct", "Grade", "Undo", "File"}) {
                    Ask(all, name);
                    QTest::qWait(150); // a button stays down for 100 milliseconds
                    found += session.texts("numstudents missed") + u' ';
                }
                QVERIFY(QApplication::activePopupWidget() == nullptr);
                session.widget("percentage")->setFocus();
                Ask(all, u"Close"_s);
                QTest::qWait(10);
                QVERIFY(box == QApplication::activeModalWidget() && (box == nullptr || box->close()));
            });
            QEvent unhandled(QEvent::Shortcut); // is over then, and no longer counts as an act of the user
            QVERIFY(!QCoreApplication::sendEvent(this, &unhandled));
            Ask(all, QLatin1String(opens));
            QVERIFY(found.isEmpty());                         // the answer came at once
            Ask(all, QLatin1String(isBox ? "Grade" : opens)); // which would act behind the box
            QTRY_COMPARE(found, isBox ? "2| 2| 2| 2| 2| "_L1 : "2|7 2|7 3|6 2|6 2|6 "_L1);
            QTRY_COMPARE(session.window() != nullptr, isBox);
            QVERIFY(!isBox || !session.form().checkcorrect().Value());
            QVERIFY(!isBox || session.window()->focusWidget() == focused);
        }
    }

    void closedWindowsOutliveTheirHandlers()
    {
        TestSession session({{kNeedsPoints}});
        session.play("filepresent");
        session.activate();
        QPointer<QWidget> const window = session.window();
        session.whileBoxIsUp = [&] {
            session.form().Close();
            QTest::qWait(1);
            QVERIFY(window != nullptr);
        };
        session.play("PushButton1");
        QTRY_VERIFY(window == nullptr);
    }

    void noticesComeBeforeTheNextKeyAndLoseNoKeyAndNoSelection()
    {
        TestSession const session;
        session.play("filepresent");
        session.activate();
        session.play("write aplusmin=95; focus amax");
        PlatformDoors() = realDoors;
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
        session.play("key Tab; keys 94"); // the notice comes at the first key
        QTRY_COMPARE(boxes, 1);
        session.activate();
        session.expectFields("aplusmin=95 amax=94 amin=94");
        QCOMPARE(QApplication::focusWidget(), session.widget("amin"));
        // The second Tab goes before the notice.
        session.play("write aplusmin=96; focus amax; key Tab; key Tab");
        QTRY_COMPARE(boxes, 2);
        QCOMPARE(session.field("aminusmax")->selectedText(), "92"_L1);
        // Two notices in a row, before the click that moved the focus is over.
        session.activate();
        session.setFields("aminusmax=94 bplusmin=0 bmax=-1");
        QTest::mousePress(session.widget("bmax"), Qt::LeftButton);
        session.form().PushButton2().Action();
        QCOMPARE(boxes, 4);
        QCOMPARE(session.field("bmax")->selectedText(), "-1"_L1);
    }
};

GRADELOOM_TEST(Boxes)
#include "test_boxes.moc"
