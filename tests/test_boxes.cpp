#include "tests/harness.h"

#include "platform/message_box.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

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

/// What answers a message box of the desktop.
class Boxes final : public QObject {
    Q_OBJECT

private slots:
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

    void theNoticeComesBeforeTheNextKeyAndLosesNone()
    {
        TestSession const session;
        session.setFields("aplusmin=95");
        session.enterField("amax");
        session.useRealMessageBoxes(); // the real box, closed by Return
        int boxes = 0;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&boxes] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++boxes;
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        closer.start(5);
        QTest::keyClick(session.widget("amax"), Qt::Key_Tab);
        QTest::keyClicks(session.widget("amin"), u"94"_s); // the first key finds the notice still to come
        QTRY_COMPARE(boxes, 1);
        session.activate();
        QCOMPARE(session.texts("aplusmin amax amin"), "95|94|94"_L1);
        QCOMPARE(QApplication::focusWidget(), session.widget("amin"));
        QTest::qWait(20); // no second notice when the window has come back
        QCOMPARE(boxes, 1);
        session.setFields("aplusmin=96");
        session.enterField("amax");
        QTest::keyClick(session.widget("amax"), Qt::Key_Tab);
        QTest::keyClick(session.widget("amin"),
                        Qt::Key_Tab); // goes ahead of the notice and selects its field
        QTRY_COMPARE(boxes, 2);
        QCOMPARE(qobject_cast<QLineEdit*>(session.widget("aminusmax"))->selectedText(), "92"_L1);
    }
};

GRADELOOM_TEST(Boxes)
#include "test_boxes.moc"
