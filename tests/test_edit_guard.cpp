#include "tests/harness.h"

#include <QMessageBox>
#include <QTimer>

using namespace std::string_literals;

namespace {

constexpr char const* kQuestion =
    "You are about to change the grading scale in the middle of entering grades.";

constexpr char const* kBands[] = {"an A+", "an A", "an A-", "a B+", "a B", "a B-",
                                  "a C+",  "a C",  "a C-",  "a D+", "a D", "a D-"};

} // namespace

/// Entered data is protected from edits of the scale, and the boundaries are checked as the focus moves down it.
class EditGuard final : public QObject {
    Q_OBJECT

private slots:
    void noPutsTheTextBackOnceForEachGainOfTheFocus()
    {
        TestSession session;
        QLineEdit* const field = session.enterField("bmax");
        auto const declined = [&](Qt::Key key) {
            session.expectBox(kQuestion, kNo);
            QTest::keyClick(field, key);
            return session.texts("bmax fileresetfield numstudents");
        };
        session.setFields("total=40");
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(declined(Qt::Key_5), "5||1"_L1); // the focus from before the first entry has stored nothing
        session.enterField("cmax");
        session.enterField("bmax")->deselect();
        QCOMPARE(declined(Qt::Key_Left), "5|5|1"_L1); // changes nothing: the stored text stays
        QCOMPARE(declined(Qt::Key_6), "5||1"_L1);
        QVERIFY(field->cursorPosition() == 1 && !field->hasSelectedText());
        QCOMPARE(declined(Qt::Key_6), "56||1"_L1); // the second one stands
        session.enterField("bminusmax");
        session.enterField("bmax");
        QCOMPARE(declined(Qt::Key_Backspace), "56||1"_L1);
        session.setFields("amax=100 dmax=0.9");
        session.expectBox(kQuestion, kNo);
        session.enterField("amax")->deselect();
        QTest::keyClick(session.widget("amax"), Qt::Key_5); // no room for it
        session.expectBox(kQuestion, kNo);
        QTest::keyClick(session.enterField("dmax"), Qt::Key_5); // a text of zero is not put back
        QCOMPARE(session.texts("amax dmax"), "100|5"_L1);
    }

    void aChangeWithoutAKeyIsPutBackAndYesThrowsTheEntriesAway()
    {
        TestSession session;
        session.enterScores("40", {"4", "8"});
        session.enterField("cmax");
        session.paste("12");
        session.enterField("bmax");
        session.chooseCommand("EditCut");
        SendInputMethod(session.enterField("dmax"), "9");
        QCOMPARE(session.texts("cmax bmax dmax numstudents fileresetfield"), "77|87|67|2|"_L1);
        session.expectBox(kQuestion, kYes);
        QTest::keyClicks(session.enterField("aplusmin"), u"96"_s); // one question for the two keys
        QCOMPARE(session.texts("aplusmin total pointstemp problem fileresetfield"), "96|40|40||"_L1);
        QCOMPARE(session.texts("numstudents average agrade percentage correct ListBox1 ListBox4"),
                 "||||||"_L1);
    }

    void aBoundaryThatIsOffComesOutInWholeNumbers()
    {
        QByteArrayList const all = QByteArray(kScaleFieldNames).split(' ');
        for (qsizetype band = 1; band < 12; ++band) {
            TestSession session;
            QByteArray const fields = all[2 * band - 1] + ' ' + all[2 * band];
            for (char const* const lower : {"49.5", "49.6", "49.4", "words"}) {
                bool const isOff = lower != "49.5"_L1;
                session.setFields(QByteArray(fields).replace(" ", "=50.5 ") + '=' + lower);
                if (isOff) {
                    session.expectBox("The difference between the minimum for "s + kBands[band - 1] +
                                      " and the maximum for " + kBands[band] + " must be equal to one.");
                }
                session.click(all[2 * band + 1]);
                QCoreApplication::processEvents();
                QVERIFY(session.allBoxesSeen());
                QCOMPARE(session.texts(fields), isOff ? "51|50"_L1 : "50.5|49.5"_L1);
                session.enterField("total");
            }
        }
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

GRADELOOM_TEST(EditGuard)
#include "test_edit_guard.moc"
