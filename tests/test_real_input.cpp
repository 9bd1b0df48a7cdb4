#include "presenter/presenter.h"
#include "tests/harness.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QStyleHints>

namespace {

/// Posts a copy of each key without its time stamp, as the toolkit does while an assistive program listens for keys.
class KeyListener final : public QObject {
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        auto const* const key = dynamic_cast<QKeyEvent*>(event);
        bool const isOriginal = key != nullptr && key->timestamp() != 0;
        if (isOriginal) {
            QKeyEvent* const copy = key->clone();
            copy->setTimestamp(0);
            QCoreApplication::postEvent(receiver, copy);
        }
        return isOriginal;
    }
};

/// Holds a key down as an X server does: each repeat is a release and a press with one time stamp.
void Hold(Qt::Key key, QWindow* window)
{
    static quint64 time = 0; // milliseconds
    for (int i = 0; i < 4; ++i) {
        time += i == 2 ? 0 : 500;
        QKeyEvent event(i % 2 == 0 ? QEvent::KeyPress : QEvent::KeyRelease, key, Qt::NoModifier);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(window, &event);
        QCoreApplication::processEvents();
    }
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

/// Presses a key in a field's context menu, and returns what could be chosen there.
QString PressInContextMenu(Qt::Key key, QWidget* field)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), field->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(field, &event);
    QWidget* const menu = QApplication::activePopupWidget();
    QStringList texts;
    for (QAction const* const item : menu->actions()) {
        if (item->isEnabled() && !item->isSeparator()) {
            texts += QString(item->text()).remove(u'&');
        }
    }
    QTest::keyClick(menu, key);
    return texts.join(u", "_s);
}

} // namespace

/// What hands, keyboards and assistive programs do otherwise than a simple test: nothing that nobody meant.
class RealInput final : public QObject {
    Q_OBJECT

private slots:
    void doubleClicksPressButtonsOnceAndToggleTwice()
    {
        TestSession const session;
        session.type("total", "30");
        auto const interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        for (quint64 const time : {quint64{0}, interval / 2, interval - 1, interval, 2 * interval - 1}) {
            ClickAt(session.widget("PushButton1"), 10'000 + time);
        }
        session.expectFields("numstudents=2"); // one more when the interval is over
        ClickAt(session.widget("checkcorrect"), 50'000);
        ClickAt(session.widget("checkcorrect"), 50'100);
        QVERIFY(!session.form().checkcorrect().Value());
    }

    void heldKeysActOnce()
    {
        TestSession const session;
        session.play("total=30; missed=1 Return; missed=2 Return; missed=3 Return; missed=4 Return");
        KeyListener listener;
        for (int entries = 6; entries <= 8; entries += 2) {
            for (char const* const name : {"PushButton1", "missed", "checkcorrect"}) {
                session.play(u"focus "_s + name);
                Hold(name == "missed"_L1 ? Qt::Key_Return : Qt::Key_Space, session.window()->windowHandle());
            }
            session.expectFields(u"numstudents=%1"_s.arg(entries));
            QCOMPARE(session.form().checkcorrect().Value(), entries == 6);
            qApp->installEventFilter(&listener); // the second time
        }
    }

    void menusThatAreLeftGiveTheKeysBack()
    {
        TestSession const session;
        session.play("total=40");
        QWindow* const window = session.window()->windowHandle();
        QString opened;
        int entries = 0;
        for (char const* const way :
             {"Alt+E Esc", "Alt+F Esc", "F10 Right Esc", "F10 F10", "Alt", "9 Esc", "9 9", "9 300"}) {
            session.play("write missed=9; focus total; focus missed"); // which selects it
            for (QString const& act : (QLatin1String(way) + u" 3 Return"_s).split(u' ')) {
                QPoint const place(act.toInt(), act.toInt()); // of a click: 9 is on a menu's title
                QKeyCombination const key = QKeySequence(act)[0];
                QTest::qSleep(2); // milliseconds: the repeats of a held key have none between
                place.x() > 3 ? QTest::mouseClick(window, Qt::LeftButton, {}, place)
                              : QTest::keyClick(window, key.key(), key.keyboardModifiers());
                auto const* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                opened += menu != nullptr ? menu->menuAction()->text() + u' ' : QString();
            }
            session.expectFields(u"numstudents=%1 lastmissed=3"_s.arg(++entries));
        }
        QCOMPARE(opened, "Edit File File Edit File File File File "_L1);
    }

    void contextMenuFollowsTheFieldsRules()
    {
        TestSession const session;
        QGuiApplication::clipboard()->clear();
        session.play("write percentage=90; focus percentage");
        QCOMPARE(PressInContextMenu(Qt::Key_Escape, session.field("percentage")), "Copy, Select All"_L1);
        session.play("focus missed");
        QCOMPARE(PressInContextMenu(Qt::Key_Escape, session.field("missed")), QString());
        session.play("keys 5; key Shift+Left; key Ctrl+C");
        QCOMPARE(PressInContextMenu(Qt::Key_Escape, session.field("missed")),
                 "Undo, Cut, Copy, Paste, Clear, Select All"_L1);
        session.play("focus amax");
        QLineEdit* const amax = session.field("amax");
        QGuiApplication::clipboard()->setText(u"\n1\n2345\n"_s);
        PressInContextMenu(Qt::Key_P, amax);
        session.expectFields("amax=1 2");
        amax->selectAll();
        PressInContextMenu(Qt::Key_T, amax);
        QTRY_VERIFY(amax->findChild<QMenu*>() == nullptr); // each is deleted when it closes
        session.expectFields("amax=");
        QCOMPARE(QGuiApplication::clipboard()->text(), "1 2"_L1);
    }

    void selectedRowsAreCopiedAsTabSeparatedText()
    {
        TestSession const session;
        session.play("total=30" + u"; missed=3 Return"_s.repeated(20));
        auto const* const list = session.widget<QTableView>("ListBox1");
        QString const nextPage = QString::number(1 + list->viewport()->height() / 16); // pixels of a row
        session.play("focus ListBox1");
        auto const expectCopied = [&](QString const& rows) {
            session.play("key Ctrl+C");
            QCOMPARE(QGuiApplication::clipboard()->text(),
                     QString(rows).replace(u" "_s, u"\t90\t%\n"_s) + u"\t90\t%"_s);
        };
        QString const steps =
            u"Down 1,Shift+Down 1 2,End 20,Shift+Up 19 20,Up 18,Down 19,End 20,Down 20,Home 1,PgDown %1,PgUp 1,"
            "Up 1,Down 2,Down 3,Shift+Home 1 2 3"_s;
        for (QString const& step : steps.arg(nextPage).split(u',')) { // a key and the rows selected by it
            session.play("key " + step.section(u' ', 0, 0));
            expectCopied(step.section(u' ', 1));
            QVERIFY(list->viewport()->rect().contains(list->visualRect(list->currentIndex())));
        }
        auto const at = [list](int row) {
            return list->visualRect(list->model()->index(row - 1, 1)).center();
        };
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at(6));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, at(4));
        expectCopied(u"4 6"_s);
    }

    void keysSpeakWholeRows()
    {
        TestSession const session;
        session.play("total=30; missed=3 Return; missed=6 Return; missed=9 Return");
        ::Window1().EditField1().Text("105");
        ::Window1().PushButton1_Action();
        for (auto const& [name, window, expected] : {
                 std::tuple("ListBox1", "mainscreen", "Student 1 Percentage 90  %"),
                 {"ListBox1", "Window1", "Number missed 0 Percentage 100"},
                 {"ListBox2", "Window1", "Number missed -36 Percentage 65.71429"},
                 {"ListBox5", "Window1", "Number missed -71 Percentage 32.38095"},
             }) {
            auto* const list = session.widget<QTableView>(name, window);
            session.activate(window);
            list->setFocus(Qt::TabFocusReason);
            QSignalSpy const changes(list->selectionModel(), &QItemSelectionModel::currentChanged);
            session.play("key Down");
            QCOMPARE(changes.size(), 1); // without it the toolkit says nothing
            auto* const table = QAccessible::queryAccessibleInterface(list)->tableInterface();
            QStringList row;
            for (int column = 0; column < table->columnCount(); ++column) {
                row += table->columnDescription(column);
                row += table->cellAt(list->currentIndex().row(), column)->text(QAccessible::Name);
            }
            QCOMPARE(row.join(u' '), QLatin1String(expected));
        }
    }

    void assistiveProgramsReadWholeFields()
    {
        TestSession const session;
        session.play("write amin=1234");
        QAccessibleTextInterface* const text =
            QAccessible::queryAccessibleInterface(session.widget("amin"))->textInterface();
        int start = 0;
        int end = 0;
        text->attributes(0, &start, &end);
        QCOMPARE(text->text(start, end), "1234"_L1);
        // In the toolkit's own interface this never returns.
        QCOMPARE(text->textAtOffset(4, QAccessible::WordBoundary, &start, &end), "1234"_L1);
    }

    void dragsSelectWhatTheyCover()
    {
        TestSession const session;
        session.setFields("amin=123456");
        QLineEdit* const field = session.field("amin");
        QTest::mousePress(field, Qt::LeftButton, {}, QPoint(3, 10));
        QTest::mouseMove(field, QPoint(25, 10));
        QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(25, 10));
        QVERIFY(field->hasSelectedText() && field->selectedText() != field->text());
    }
};

GRADELOOM_TEST(RealInput)
#include "test_real_input.moc"
