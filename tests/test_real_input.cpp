#include "tests/harness.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QStyleHints>
#include <QTimer>

namespace {

constexpr char const* kDeletesData = "You are about to change the grading scale";

struct Key {
    char const* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    char const* text;
    bool raisesKeyDown;
} const kKeys[] = {
    {"a digit",                    Qt::Key_5,           Qt::NoModifier,                        "5",    true },
    {"an arrow",                   Qt::Key_Left,        Qt::NoModifier,                        "",     true },
    {"Escape",                     Qt::Key_Escape,      Qt::NoModifier,                        "\x1b", true },
    {"F5",                         Qt::Key_F5,          Qt::NoModifier,                        "",     true },
    {"a letter of another script", Qt::Key_unknown,     Qt::NoModifier,                        "q",    true },
    {"AltGr with a letter",        Qt::Key_Q,           Qt::ControlModifier | Qt::AltModifier, "@",    true },
    {"Shift",                      Qt::Key_Shift,       Qt::ShiftModifier,                     "",     false},
    {"Num Lock",                   Qt::Key_NumLock,     Qt::NoModifier,                        "",     false},
    {"AltGr",                      Qt::Key_AltGr,       Qt::NoModifier,                        "",     false},
    {"the next layout",            Qt::Key_unknown,     Qt::AltModifier,                       "",     false},
    {"Kana",                       Qt::Key_Kana_Lock,   Qt::NoModifier,                        "",     false},
    {"Eisu",                       Qt::Key_Eisu_toggle, Qt::NoModifier,                        "",     false},
    {"Hangul",                     Qt::Key_Hangul,      Qt::NoModifier,                        "",     false},
    {"a dead key",                 Qt::Key_Dead_Acute,  Qt::NoModifier,                        "",     false},
    {"Compose",                    Qt::Key_Multi_key,   Qt::NoModifier,                        "",     false},
    {"a media key",                Qt::Key_VolumeUp,    Qt::NoModifier,                        "",     false},
    {"Alt with a letter",          Qt::Key_X,           Qt::AltModifier,                       "x",    false},
    {"Super with a letter",        Qt::Key_X,           Qt::MetaModifier,                      "x",    false},
};

/// Presses the left button at this time in milliseconds and releases it.
void ClickAt(QWidget* widget, quint64 time)
{
    QPointF const place(5, 5);
    for (QEvent::Type const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        bool const isDown = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, place, widget->mapToGlobal(place), Qt::LeftButton,
                          isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(widget, &event);
    }
}

/// Chooses an item of a field's context menu.
void ChooseInContextMenu(QWidget* field, QString const& caption)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), field->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(field, &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    for (QAction* const action : menu->actions()) {
        if (action->text().remove(u'&') == caption) {
            action->trigger();
        }
    }
    menu->close();
}

int Entries(TestSession const& session)
{
    return session.text("numstudents").toInt();
}

} // namespace

/// What hands and keyboards do otherwise than a simple test: nothing that nobody meant.
class RealInput final : public QObject {
    Q_OBJECT

private slots:
    void onlyAKeyThatDoesSomethingRaisesKeyDown_data() { AddRows(kKeys); }
    void onlyAKeyThatDoesSomethingRaisesKeyDown()
    {
        QFETCH(Key const*, row);
        TestSession session;
        session.enterScores("40", {"3"});
        QLineEdit* const field = session.enterField("bmax");
        if (row->raisesKeyDown) {
            session.expectBox(kDeletesData, kNo);
        }
        QKeyEvent event(QEvent::KeyPress, row->key, row->modifiers, QLatin1String(row->text));
        QCoreApplication::sendEvent(field, &event);
        QVERIFY(session.allBoxesSeen());
        session.expectFields("bmax=87 numstudents=1");
    }

    void aKeyWithAltTypesNothingAndOpensTheMenus()
    {
        TestSession const session;
        QLineEdit* const field = session.enterField("missed");
        auto const openedBy = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(field, key, modifiers);
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QString const title = menu == nullptr ? QString() : menu->menuAction()->text();
            if (menu != nullptr) {
                menu->close();
            }
            return title;
        };
        QCOMPARE(openedBy(Qt::Key_F, Qt::AltModifier), "File"_L1);
        QCOMPARE(openedBy(Qt::Key_E, Qt::AltModifier), "Edit"_L1);
        QCOMPARE(openedBy(Qt::Key_F10, Qt::NoModifier), "File"_L1);
        QTest::keyClick(field, Qt::Key_X, Qt::MetaModifier);
        QTest::keyClick(field, Qt::Key_7);
        session.expectFields("missed=7");
    }

    void aDoubleOrTripleClickOnGradeMakesOneEntry()
    {
        TestSession const session;
        session.type("total", "30");
        auto const interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        for (quint64 const time : {quint64{1000}, 1000 + interval - 1, 1000 + 2 * (interval - 1)}) {
            ClickAt(session.widget("PushButton1"), time);
        }
        QCOMPARE(Entries(session), 1);
        ClickAt(session.widget("PushButton1"), 1000 + 3 * interval);
        QCOMPARE(Entries(session), 2);
        ClickAt(session.widget("checkcorrect"), 5000);
        ClickAt(session.widget("checkcorrect"),
                5100); // a box may be checked and cleared as fast as one likes
        QVERIFY(!session.form().checkcorrect().Value());
    }

    void heldKeysActOnce()
    {
        TestSession const session;
        session.enterScores("30", {"1", "2", "3", "4"});
        auto const hold = [&](char const* name, Qt::Key key, QString const& text) {
            QWidget* const widget = session.widget(name);
            QTest::keyPress(widget, key);
            for (int i = 0; i < 3; ++i) {
                QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, text, true);
                QCoreApplication::sendEvent(widget, &repeat);
            }
            QTest::keyRelease(widget, key);
        };
        hold("PushButton1", Qt::Key_Space, u" "_s);
        QCOMPARE(Entries(session), 5);
        hold("missed", Qt::Key_Return, u"\r"_s);
        QCOMPARE(Entries(session), 6);
        hold("checkcorrect", Qt::Key_Space, u" "_s);
        QVERIFY(session.form().checkcorrect().Value());
    }

    void thePasteOfAContextMenuIsOneLineWithinTheLimit()
    {
        TestSession const session;
        QLineEdit* const amax = session.enterField("amax");
        QGuiApplication::clipboard()->setText(u"\n12345\n"_s);
        ChooseInContextMenu(amax, u"Paste"_s);
        session.expectFields("amax=123");
        amax->selectAll();
        QGuiApplication::clipboard()->setText(u"97\n"_s);
        ChooseInContextMenu(amax, u"Paste"_s);
        session.expectFields("amax=97");
        amax->selectAll();
        ChooseInContextMenu(amax, u"Cut"_s);
        session.expectFields("amax=");
        QCOMPARE(QGuiApplication::clipboard()->text(), "97"_L1);
        ChooseInContextMenu(session.field("percentage"), u"Paste"_s);
        session.expectFields("percentage=");
    }

    void aTextThatAnInputMethodCommitsIsTyping()
    {
        TestSession session;
        session.enterScores("40", {"3"});
        QLineEdit* const field = session.enterField("bmax");
        field->deselect();
        SendInputMethod(field, "", "\u00b4"); // still in composition
        session.expectBox(kDeletesData, kNo);
        SendInputMethod(field, "\u00e9");
        session.expectFields("bmax=87 numstudents=1");
        std::string key;
        session.form().missed().KeyDown = [&key](TextField&, std::string const& pressed) {
            key = pressed;
            return true;
        };
        SendInputMethod(session.enterField("missed"), "7");
        QCOMPARE(key, std::string("7"));
        session.expectFields("missed=");
    }

    void theFirstUndoKeyAfterARefusalOrAPutBackTakesNoEntry_data()
    {
        QTest::addColumn<QString>("slip");
        QTest::addColumn<QString>("between");
        QTest::addColumn<int>("entriesAfterOne");
        for (char const* const slip : {"refused", "no points", "put back", "points put back"}) {
            QTest::addRow("%s, then Ctrl+Z", slip) << slip << "" << 2;
        }
        QTest::newRow("refused, then the menu item") << "refused"
                                                     << "menu" << 1;
        QTest::newRow("refused, the focus moved") << "refused"
                                                  << "focus" << 1;
        QTest::newRow("refused, another command") << "refused"
                                                  << "command" << 1;
        QTest::newRow("put back, the focus moved") << "put back"
                                                   << "focus" << 1;
    }
    void theFirstUndoKeyAfterARefusalOrAPutBackTakesNoEntry()
    {
        QFETCH(QString, slip);
        QFETCH(QString, between);
        QFETCH(int, entriesAfterOne);
        TestSession session;
        session.enterScores("40", {"3", "4"});
        if (slip == u"refused") {
            session.expectBox(kTooManyMissed);
            session.type("missed", "45\n");
        } else if (slip == u"no points") {
            session.setFields("total=0");
            session.expectBox(kNeedsPoints);
            session.type("missed", "\n");
        } else if (slip == u"put back") {
            session.expectBox(kDeletesData, kNo);
            QTest::keyClick(session.enterField("bmax"), Qt::Key_5);
        } else {
            session.expectBox("To change the number of points");
            QTest::keyClick(session.enterField("total"), Qt::Key_5);
        }
        if (between == u"focus") {
            session.enterField("lastmissed");
        } else if (between == u"command") {
            session.click("PushButton2");
        } else if (between == u"menu") {
            session.chooseCommand("EditUndo");
            QCOMPARE(Entries(session), entriesAfterOne);
            return;
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Entries(session), entriesAfterOne);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Entries(session), entriesAfterOne == 1 ? 0 : 1);
    }

    void selectedRowsOfAListAreCopiedForASpreadsheet()
    {
        TestSession const session;
        session.enterScores("30", {"3", "6", "9"});
        auto* const list = session.widget<QTableView>("ListBox1");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down); // the first one
        QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), "1\t90\t%\n2\t80\t%"_L1);
        QTest::keyClick(list, Qt::Key_End);
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), "3\t70\t%"_L1);
        QTest::keyClick(list, Qt::Key_Home);
        QCOMPARE(list->currentIndex().row(), 0);
    }

    void aResultWiderThanItsFieldIsCondensed()
    {
        TestSession const session;
        QLineEdit* const result = session.field("percentage");
        session.setFields("percentage=90");
        int const normal = result->font().stretch();
        session.setFields("percentage=89.49772");
        QVERIFY(result->font().stretch() < normal && result->font().stretch() >= 70);
        session.setFields("percentage=1");
        QCOMPARE(result->font().stretch(), normal);
    }
};

GRADELOOM_TEST(RealInput)
#include "test_real_input.moc"
