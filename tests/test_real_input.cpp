#include "tests/harness.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QStyleHints>

namespace {

/// Presses the left button at this time in milliseconds and releases it.
void ClickAt(QWidget* widget, quint64 time)
{
    QPointF const place(5, 5);
    for (QEvent::Type const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, widget->mapToGlobal(place), Qt::LeftButton, {}, {});
        event.setTimestamp(time);
        QCoreApplication::sendEvent(widget, &event);
    }
}

/// Chooses an item of a field's context menu by its underlined letter.
void ChooseInContextMenu(QWidget* field, Qt::Key letter)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), field->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(field, &event);
    QTest::keyClick(QApplication::activePopupWidget(), letter);
    QVERIFY(QApplication::activePopupWidget() == nullptr || QApplication::activePopupWidget()->close());
}

} // namespace

/// What hands, keyboards and assistive programs do otherwise than a simple test: nothing that nobody meant.
class RealInput final : public QObject {
    Q_OBJECT

private slots:
    void aKeyWithAltTypesNothingAndOpensTheMenus()
    {
        TestSession const session;
        QLineEdit* const field = session.enterField("missed");
        auto const openedBy = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(field, key, modifiers);
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            return menu != nullptr && menu->close() ? menu->menuAction()->text() : QString();
        };
        QCOMPARE(openedBy(Qt::Key_F, Qt::AltModifier), "File"_L1);
        QCOMPARE(openedBy(Qt::Key_E, Qt::AltModifier), "Edit"_L1);
        QCOMPARE(openedBy(Qt::Key_F10, Qt::NoModifier), "File"_L1);
        session.play("key Meta+X; key 7");
        session.expectFields("missed=7");
    }

    void aDoubleOrTripleClickMakesOneEntryButCountsOnABox()
    {
        TestSession const session;
        session.type("total", "30");
        auto const interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        for (quint64 const time : {quint64{0}, interval - 1, 2 * (interval - 1), 3 * interval}) {
            ClickAt(session.widget("PushButton1"), 1000 + time);
        }
        session.expectFields("numstudents=2"); // one more by the last click
        ClickAt(session.widget("checkcorrect"), 5000);
        ClickAt(session.widget("checkcorrect"), 5100);
        QVERIFY(!session.form().checkcorrect().Value());
    }

    void heldKeysActOnce()
    {
        TestSession const session;
        session.enterScores("30", {"1", "2", "3", "4"});
        for (char const* const name : {"PushButton1", "missed", "checkcorrect"}) {
            Qt::Key const key = name == "missed"_L1 ? Qt::Key_Return : Qt::Key_Space;
            QTest::keyPress(session.widget(name), key);
            for (int i = 0; i < 3; ++i) {
                QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
                QCoreApplication::sendEvent(session.widget(name), &repeat);
            }
            QTest::keyRelease(session.widget(name), key);
        }
        session.expectFields("numstudents=6");
        QVERIFY(session.form().checkcorrect().Value());
    }

    void theContextMenuKeepsToTheRulesOfTheField()
    {
        TestSession const session;
        QLineEdit* const amax = session.enterField("amax");
        QGuiApplication::clipboard()->setText(u"\n1\n2345\n"_s);
        ChooseInContextMenu(amax, Qt::Key_P);
        session.expectFields("amax=1 2");
        amax->selectAll();
        ChooseInContextMenu(amax, Qt::Key_T);
        session.expectFields("amax=");
        QCOMPARE(QGuiApplication::clipboard()->text(), "1 2"_L1);
        ChooseInContextMenu(session.field("percentage"), Qt::Key_P);
        session.expectFields("percentage=");
    }

    void selectedRowsOfAListAreCopiedForASpreadsheet()
    {
        TestSession const session;
        session.enterScores("30", {"3", "6", "9"});
        session.play("focus ListBox1; key Down; key Shift+Down; key Ctrl+C"); // the first row and one more
        QCOMPARE(QGuiApplication::clipboard()->text(), "1\t90\t%\n2\t80\t%"_L1);
        session.play("key End; key Ctrl+C");
        QCOMPARE(QGuiApplication::clipboard()->text(), "3\t70\t%"_L1);
        session.play("key Home; key Ctrl+C");
        QCOMPARE(QGuiApplication::clipboard()->text(), "1\t90\t%"_L1);
    }

    void anAssistiveEditIsAnsweredFirstAndThenTyped()
    {
        TestSession const session;
        QWidget* const missed = session.widget("missed");
        QAccessible::queryAccessibleInterface(missed)->setText(QAccessible::Value, u"5\n"_s);
        session.expectFields("missed=");
        QCoreApplication::processEvents();
        session.expectFields("missed=5");
        QCOMPARE(QApplication::focusWidget(), missed);
    }
};

GRADELOOM_TEST(RealInput)
#include "test_real_input.moc"
