#include "tests/harness.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QStyleHints>

namespace {

/// What a screen reader says; it asks for it a moment after it appears. Unused with later toolkits.
[[maybe_unused]] QString SpokenIn(QWidget const& window)
{
    for (QObject* const child : window.children()) {
        QAccessibleInterface const* const spoken = QAccessible::queryAccessibleInterface(child);
        if (spoken != nullptr && spoken->role() == QAccessible::Notification) {
            return spoken->parent()->object() == &window ? spoken->text(QAccessible::Name) : QString();
        }
    }
    return {};
}

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

void OpenContextMenu(QWidget* field)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), field->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(field, &event);
}

/// What can be chosen in a field's context menu.
QString ContextMenuOf(QWidget* field)
{
    OpenContextMenu(field);
    QStringList texts;
    for (QAction const* const item : QApplication::activePopupWidget()->actions()) {
        if (item->isEnabled() && !item->isSeparator()) {
            texts += QString(item->text()).remove(u'&');
        }
    }
    QApplication::activePopupWidget()->close();
    field->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(field->window()));
    return texts.join(u", "_s);
}

/// Chooses an item of a field's context menu by its underlined letter.
void ChooseInContextMenu(QWidget* field, Qt::Key letter)
{
    OpenContextMenu(field);
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
        QGuiApplication::clipboard()->clear();
        session.setFields("percentage=90");
        QCOMPARE(ContextMenuOf(session.enterField("percentage")), "Copy, Select All"_L1);
        QCOMPARE(ContextMenuOf(session.enterField("missed")), QString());
        session.play("keys 5; key Shift+Left; key Ctrl+C");
        QCOMPARE(ContextMenuOf(session.field("missed")), "Undo, Cut, Copy, Paste, Clear, Select All"_L1);
        QLineEdit* const amax = session.enterField("amax");
        QGuiApplication::clipboard()->setText(u"\n1\n2345\n"_s);
        ChooseInContextMenu(amax, Qt::Key_P);
        session.expectFields("amax=1 2");
        amax->selectAll();
        ChooseInContextMenu(amax, Qt::Key_T);
        session.expectFields("amax=");
        QCOMPARE(QGuiApplication::clipboard()->text(), "1 2"_L1);
    }

    void selectedRowsOfAListAreCopiedForASpreadsheet()
    {
        TestSession const session;
        session.play("total=30" + u"; missed=3 Return"_s.repeated(20));
        auto const* const list = session.widget<QTableView>("ListBox1");
        QString const nextPage = QString::number(1 + list->viewport()->height() / 16); // pixels of a row
        session.play("focus ListBox1");
        QString const steps =
            u"Down 1,Shift+Down 1 2,End 20,Up 19,Down 20,Down 20,Home 1,PgDown %1,PgUp 1,Up 1"_s;
        for (QString const& step : steps.arg(nextPage).split(u',')) { // a key and the rows selected by it
            session.play("key " + step.section(u' ', 0, 0) + "; key Ctrl+C");
            QString const rows = step.section(u' ', 1).replace(u" "_s, u"\t90\t%\n"_s) + u"\t90\t%"_s;
            QCOMPARE(QGuiApplication::clipboard()->text(), rows);
            QVERIFY(list->viewport()->rect().contains(list->visualRect(list->currentIndex())));
        }
    }

    void aScreenReaderHearsWhatWasGradedAndUndone()
    {
        TestSession const session;
        auto const* const rows = session.widget<QTableView>("ListBox1")->model();
        QCOMPARE(rows->headerData(0, Qt::Horizontal).toString(), "Student"_L1);
        QCOMPARE(rows->headerData(1, Qt::Horizontal).toString(), "Percentage"_L1);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0) // later ones leave nothing behind that a test could ask
        for (auto const& [acts, words] : std::initializer_list<std::pair<QString, QString>>{
                 {u"total=30; missed=3 Return"_s, u"90 percent, A-"_s},
                 {u"missed=4 Return"_s, u"86.66667 percent, B"_s},
                 {u"missed=5 Return; EditUndo"_s, u"2 students"_s},
                 {u"EditUndo"_s, u"1 student"_s},
                 {u"EditUndo"_s, u"no students"_s}}) {
            session.play(acts);
            QCOMPARE(SpokenIn(*session.window()), words);
        }
#endif
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
