#include "tests/harness.h"

#include <QMessageBox>
#include <QTimer>

using namespace std::string_literals;

namespace {

constexpr char const* kQuestion =
    "You are about to change the grading scale in the middle of entering grades.";

constexpr char const* kBands[] = {"an A+", "an A", "an A-", "a B+", "a B", "a B-",
                                  "a C+",  "a C",  "a C-",  "a D+", "a D", "a D-"};

/// Moves the focus here as Tab does; the gain of it has then been told.
QLineEdit* Enter(Desk const& desk, char const* name)
{
    desk.widget(name)->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    return desk.widget<QLineEdit>(name);
}

} // namespace

/// Entered data is protected from edits of the scale, and the boundaries are checked as the focus moves down it.
class EditGuard final : public QObject {
    Q_OBJECT

private slots:
    void noPutsTheTextBackOnceForEachGainOfTheFocus()
    {
        Desk desk;
        QLineEdit* const field = Enter(desk, "bmax");
        auto const declined = [&](Qt::Key key) {
            desk.expect(kQuestion, kNo);
            QTest::keyClick(field, key);
            return desk.show("bmax fileresetfield numstudents");
        };
        desk.write("total=40");
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(declined(Qt::Key_5), "5||1"_L1); // the focus from before the first entry has stored nothing
        Enter(desk, "cmax");
        Enter(desk, "bmax")->deselect();
        QCOMPARE(declined(Qt::Key_Left), "5|5|1"_L1); // changes nothing: the stored text stays
        QCOMPARE(declined(Qt::Key_6), "5||1"_L1);
        QVERIFY(field->cursorPosition() == 1 && !field->hasSelectedText());
        QCOMPARE(declined(Qt::Key_6), "56||1"_L1); // the second one stands
        Enter(desk, "bminusmax");
        Enter(desk, "bmax");
        QCOMPARE(declined(Qt::Key_Backspace), "56||1"_L1);
        desk.write("amax=100 dmax=0.9");
        desk.expect(kQuestion, kNo);
        Enter(desk, "amax")->deselect();
        QTest::keyClick(desk.widget("amax"), Qt::Key_5); // no room for it
        desk.expect(kQuestion, kNo);
        QTest::keyClick(Enter(desk, "dmax"), Qt::Key_5); // a text of zero is not put back
        QCOMPARE(desk.show("amax dmax"), "100|5"_L1);
    }

    void aChangeWithoutAKeyIsPutBackAndYesThrowsTheEntriesAway()
    {
        Desk desk;
        desk.gradeAll("40", {"4", "8"});
        Enter(desk, "cmax");
        desk.paste("12");
        Enter(desk, "bmax");
        desk.choose("EditCut");
        Compose(Enter(desk, "dmax"), "9");
        QCOMPARE(desk.show("cmax bmax dmax numstudents fileresetfield"), "77|87|67|2|"_L1);
        desk.expect(kQuestion, kYes);
        QTest::keyClicks(Enter(desk, "aplusmin"), u"96"_s); // one question for the two keys
        QCOMPARE(desk.show("aplusmin total pointstemp problem fileresetfield"), "96|40|40||"_L1);
        QCOMPARE(desk.show("numstudents average agrade percentage correct ListBox1 ListBox4"), "||||||"_L1);
    }

    void aBoundaryThatIsOffComesOutInWholeNumbers()
    {
        QByteArrayList const all = QByteArray(kFields).split(' ');
        for (qsizetype band = 1; band < 12; ++band) {
            Desk desk;
            QByteArray const fields = all[2 * band - 1] + ' ' + all[2 * band];
            for (char const* const lower : {"49.5", "49.6", "49.4", "words"}) {
                bool const isOff = lower != "49.5"_L1;
                desk.write(QByteArray(fields).replace(" ", "=50.5 ") + '=' + lower);
                if (isOff) {
                    desk.expect("The difference between the minimum for "s + kBands[band - 1] +
                                " and the maximum for " + kBands[band] + " must be equal to one.");
                }
                desk.press(all[2 * band + 1]);
                QCoreApplication::processEvents();
                QVERIFY(desk.allSeen());
                QCOMPARE(desk.show(fields), isOff ? "51|50"_L1 : "50.5|49.5"_L1);
                Enter(desk, "total");
            }
        }
    }

    void theNoticeComesBeforeTheNextKeyAndLosesNone()
    {
        Desk const desk;
        desk.write("aplusmin=95");
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
        QTest::keyClicks(desk.widget("amin"), u"94"_s); // the first key finds the notice still to come
        QTRY_COMPARE(boxes, 1);
        desk.activate();
        QCOMPARE(desk.show("aplusmin amax amin"), "95|94|94"_L1);
        QCOMPARE(QApplication::focusWidget(), desk.widget("amin"));
        QTest::qWait(20); // no second notice when the window has come back
        QCOMPARE(boxes, 1);
        desk.write("aplusmin=96");
        Enter(desk, "amax");
        QTest::keyClick(desk.widget("amax"), Qt::Key_Tab);
        QTest::keyClick(desk.widget("amin"), Qt::Key_Tab); // goes ahead of the notice and selects its field
        QTRY_COMPARE(boxes, 2);
        QCOMPARE(qobject_cast<QLineEdit*>(desk.widget("aminusmax"))->selectedText(), "92"_L1);
    }
};

GRADELOOM_TEST(EditGuard)
#include "test_edit_guard.moc"
