#include "tests/harness.h"

#include "platform/message_box.h"
#include "platform/qt/desktop_doors.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

// Entered data is protected from edits of the scale, and the boundaries are checked as the focus moves down
// it.

namespace {

constexpr char const* kQuestion =
    "You are about to change the grading scale in the middle of entering grades.";

/// Moves the focus here as Tab does; the gain of it has then been told.
QLineEdit* Enter(Desk const& desk, char const* name)
{
    auto* const field = qobject_cast<QLineEdit*>(desk.widget(name));
    field->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    return field;
}

} // namespace

class TestEditGuard : public QObject {
    Q_OBJECT

private slots:
    void noPutsTheTextBackOnceForEachGainOfTheFocus()
    {
        Desk desk;
        desk.gradeAll("40", {"4", "8"});
        QLineEdit* const field = Enter(desk, "bmax");
        desk.expect(kQuestion, kNo);
        QTest::keyClick(field, Qt::Key_Left); // changes nothing: the stored text stays
        QCOMPARE(desk.show("bmax fileresetfield"), QStringLiteral("87|87"));
        desk.expect(kQuestion, kNo);
        QTest::keyClick(field, Qt::Key_5);
        QCOMPARE(desk.show("bmax fileresetfield numstudents"), QStringLiteral("87||2"));
        QVERIFY(field->cursorPosition() == 2 && !field->hasSelectedText());
        desk.expect(kQuestion, kNo);
        QTest::keyClick(field, Qt::Key_5); // the second one stands
        QCOMPARE(desk.show("bmax numstudents"), QStringLiteral("875|2"));
        Enter(desk, "bminusmax");
        Enter(desk, "bmax");
        desk.expect(kQuestion, kNo);
        QTest::keyClick(field, Qt::Key_Backspace);
        QCOMPARE(desk.show("bmax"), QStringLiteral("875"));
    }

    void yesThrowsTheEntriesAwayAndKeepsThePoints()
    {
        Desk desk;
        desk.gradeAll("40", {"4", "8"});
        QLineEdit* const field = Enter(desk, "aplusmin");
        desk.expect(kQuestion, kYes);
        QTest::keyClicks(field, "96"); // one question for the two keys
        QCOMPARE(
            desk.show(
                "aplusmin total pointstemp numstudents average agrade percentage correct ListBox1 ListBox4"),
            QStringLiteral("96|40|40|||||||"));
        QCOMPARE(desk.show("problem fileresetfield"), QStringLiteral("|"));
    }

    void aFullFieldAsksAndTextsOfZeroAreNotPutBack()
    {
        Desk desk;
        desk.gradeAll("40", {"4"});
        desk.write("amax", "100");
        desk.expect(kQuestion, kNo);
        Enter(desk, "amax")->deselect();
        QTest::keyClick(desk.widget("amax"), Qt::Key_5); // no room for it
        desk.write("dmax", "0.9");
        desk.expect(kQuestion, kNo);
        QTest::keyClick(Enter(desk, "dmax"), Qt::Key_5);
        QCOMPARE(desk.show("amax dmax"), QStringLiteral("100|5"));
    }

    void aChangeWithoutAKeyAsksNothingAndIsPutBack()
    {
        Desk desk;
        desk.gradeAll("40", {"4"});
        QLineEdit* field = Enter(desk, "cmax");
        QGuiApplication::clipboard()->setText("12");
        desk.choose("EditPaste");
        QCOMPARE(desk.show("cmax fileresetfield"), QStringLiteral("77|"));
        field = Enter(desk, "bmax");
        desk.choose("EditCut");
        QCOMPARE(desk.show("bmax"), QStringLiteral("87"));
        field = Enter(desk, "dmax");
        QInputMethodEvent typed;
        typed.setCommitString("9");
        QCoreApplication::sendEvent(field, &typed);
        QCOMPARE(desk.show("dmax numstudents"), QStringLiteral("67|1"));
    }

    void aFocusFromBeforeTheFirstEntryHasStoredNothing()
    {
        Desk desk;
        QLineEdit* const field = Enter(desk, "bmax");
        desk.write("total", "40");
        QTest::keyClick(field, Qt::Key_Return);
        desk.expect(kQuestion, kNo);
        QTest::keyClick(field, Qt::Key_5);
        QCOMPARE(desk.show("bmax"), QStringLiteral("5")); // it was selected
    }

    void aBoundaryThatIsOffComesOutInWholeNumbers()
    {
        struct Row {
            char const* minimum; // the field that gains the focus
            char const* fields;
            char const* bands;
        };
        for (Row const& row : {
                 Row{"amin",      "aplusmin amax",      "an A+ and the maximum for an A"},
                 Row{"aminusmin", "amin aminusmax",     "an A and the maximum for an A-"},
                 Row{"bplusmin",  "aminusmin bplusmax", "an A- and the maximum for a B+"},
                 Row{"bmin",      "bplusmin bmax",      "a B+ and the maximum for a B"  },
                 Row{"bminusmin", "bmin bminusmax",     "a B and the maximum for a B-"  },
                 Row{"cplusmin",  "bminusmin cplusmax", "a B- and the maximum for a C+" },
                 Row{"cmin",      "cplusmin cmax",      "a C+ and the maximum for a C"  },
                 Row{"cminusmin", "cmin cminusmax",     "a C and the maximum for a C-"  },
                 Row{"dplusmin",  "cminusmin dplusmax", "a C- and the maximum for a D+" },
                 Row{"dmin",      "dplusmin dmax",      "a D+ and the maximum for a D"  },
                 Row{"dminusmin", "dmin dminusmax",     "a D and the maximum for a D-"  },
        }) {
            Desk desk;
            QByteArrayList const fields = QByteArray(row.fields).split(' ');
            for (char const* const lower : {"49.5", "49.6", "49.4", "words"}) {
                desk.write(fields[0], "50.5");
                desk.write(fields[1], lower);
                bool const isOff = qstrcmp(lower, "49.5") != 0;
                if (isOff) {
                    desk.expect("The difference between the minimum for " + std::string(row.bands) +
                                " must be equal to one.");
                }
                QTest::mouseClick(desk.widget(row.minimum), Qt::LeftButton);
                QCoreApplication::processEvents();
                QVERIFY(desk.allSeen());
                QCOMPARE(desk.show(row.fields),
                         isOff ? QStringLiteral("51|50") : QStringLiteral("50.5|49.5"));
                Enter(desk, "total");
            }
        }
    }

    void theNoticeComesBeforeTheNextKeyAndLosesNone()
    {
        Desk desk;
        desk.write("aplusmin", "95");
        Enter(desk, "amax");
        PlatformDoors().messageBox = ShowMessageBox; // the real box, closed by Return
        int boxes = 0;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&boxes] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++boxes;
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        closer.start(5);
        QTest::keyClick(desk.widget("amax"), Qt::Key_Tab);
        QTest::keyClicks(desk.widget("amin"), "94"); // the first key finds the notice still to come
        QTRY_COMPARE(boxes, 1);
        desk.activate();
        QCOMPARE(desk.show("aplusmin amax amin"), QStringLiteral("95|94|94"));
        QCOMPARE(QApplication::focusWidget(), desk.widget("amin"));
        QTest::qWait(20); // no second notice when the window has come back
        QCOMPARE(boxes, 1);
    }
};

GRADELOOM_TEST(TestEditGuard)
#include "test_edit_guard.moc"
