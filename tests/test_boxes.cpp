#include "tests/harness.h"

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

void Press(QKeyCombination key)
{
    QString const text = key.key() < Qt::Key_Escape ? QString(QChar(key.key())).toLower() : QString();
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key.key(), text, key.keyboardModifiers());
}

/// Presses Return at this time in milliseconds.
void PressAt(quint64 time, QWidget* receiver, bool isHeld)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, isHeld);
    key.setTimestamp(time);
    QCoreApplication::sendEvent(receiver, &key);
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

QKeyCombination const kTyped[] = {
    Qt::Key_Return, Qt::Key_Escape, Qt::AltModifier | Qt::Key_Y, Qt::Key_9, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Left,
    Qt::Key_Shift,
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
            quiet.stop();
            std::ranges::for_each(row->keys, Press);
            bool const isByAlt = row->keys.back().keyboardModifiers() != Qt::NoModifier;
            static_cast<void>(isByAlt &&
                              QTest::qWaitFor([&box] { return box.isHidden(); })); // it shows a while
        });
        QVERIFY(answer == row->answer);
    }

    void strayKeysAnswerNothingAndRestartTheWait()
    {
        auto const answer = AnswerTo(true, [](QMessageBox const& box, QTimer& quiet) {
            QCOMPARE(quiet.interval(), 500);
            quiet.setInterval(60'000);
            for (QKeyCombination const key : kTyped) {
                QTest::qWait(200);
                int const before = quiet.remainingTime();
                Press(key);
                QVERIFY2(quiet.remainingTime() > before, qPrintable(QKeySequence(key).toString()));
                QCOMPARE(QApplication::focusWidget(), box.defaultButton());
            }
        });
        QVERIFY(answer == std::nullopt);
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
};

GRADELOOM_TEST(Boxes)
#include "test_boxes.moc"
