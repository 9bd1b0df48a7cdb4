#include "platform/message_box.h"
#include "platform/qt/desktop_doors.h"
#include "tests/harness.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int kStayedOpen = -1;

/// Shows a box on the desktop and does this with it. Gives what it answered.
int Answer(bool question, std::function<void(QMessageBox&)> const& act)
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

int AnswerByKey(bool question, Qt::Key key)
{
    return Answer(question, [=](QMessageBox& box) { QTest::keyClick(box.defaultButton(), key); });
}

} // namespace

/// The message box on the desktop: which keys answer it, and which must not.
class MessageBoxKeys final : public QObject {
    Q_OBJECT

private slots:
    void aQuestionIsAnsweredByDeliberateKeysAlone()
    {
        for (Qt::Key const key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QCOMPARE(AnswerByKey(true, key), kNo);
        }
        QCOMPARE(Answer(true,
                        [](QMessageBox& box) {
                            QTest::keyClick(&box, Qt::Key_Y, Qt::AltModifier); // pressed for a moment
                            static_cast<void>(QTest::qWaitFor([&] { return !box.isVisible(); }));
                        }),
                 kYes);
        QCOMPARE(Answer(true, [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }), kYes);
        QCOMPARE(Answer(true, [](QMessageBox& box) { box.close(); }), kNo);
        for (Qt::Key const key : {Qt::Key_Y, Qt::Key_N, Qt::Key_J, Qt::Key_5, Qt::Key_Backspace}) {
            QCOMPARE(AnswerByKey(true, key), kStayedOpen);
        }
    }

    void aNoticeIsClosedByReturnAndEscape()
    {
        for (Qt::Key const key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            QVERIFY(AnswerByKey(false, key) != kStayedOpen);
        }
        QCOMPARE(AnswerByKey(false, Qt::Key_O), kStayedOpen);
    }

    void keysHeldDownDoNothing()
    {
        for (Qt::Key const key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Y}) {
            QCOMPARE(Answer(true,
                            [key](QMessageBox& box) {
                                QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
                                QCoreApplication::sendEvent(box.defaultButton(), &event);
                            }),
                     kStayedOpen);
        }
    }

    void theTextIsPlainAndTheTitleEmpty()
    {
        Answer(true, [](QMessageBox& box) {
            QVERIFY(box.textFormat() == Qt::PlainText && box.windowTitle().isEmpty());
            QCOMPARE(box.icon(), QMessageBox::Question);
        });
    }
};

GRADELOOM_TEST(MessageBoxKeys)
#include "test_message_box.moc"
