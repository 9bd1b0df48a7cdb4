#include "tests/harness.h"

#include <QPushButton>

using namespace std::string_literals;

namespace {

constexpr char const* kQuestion =
    "You are about to change the grading scale in the middle of entering grades. This will cause Gradeloom to "
    "delete the data you have entered so far. Are you sure you want to do this?";

struct Boundary {
    char const* name; // the band above, as the notice names it
    char const* below;
    char const* upper;
    char const* lower;
    char const* focus;
} const kBoundaries[] = {
    {"an A+", "an A",  "aplusmin",  "amax",      "amin"     },
    {"an A",  "an A-", "amin",      "aminusmax", "aminusmin"},
    {"an A-", "a B+",  "aminusmin", "bplusmax",  "bplusmin" },
    {"a B+",  "a B",   "bplusmin",  "bmax",      "bmin"     },
    {"a B",   "a B-",  "bmin",      "bminusmax", "bminusmin"},
    {"a B-",  "a C+",  "bminusmin", "cplusmax",  "cplusmin" },
    {"a C+",  "a C",   "cplusmin",  "cmax",      "cmin"     },
    {"a C",   "a C-",  "cmin",      "cminusmax", "cminusmin"},
    {"a C-",  "a D+",  "cminusmin", "dplusmax",  "dplusmin" },
    {"a D+",  "a D",   "dplusmin",  "dmax",      "dmin"     },
    {"a D",   "a D-",  "dmin",      "dminusmax", "dminusmin"},
};

std::string Notice(std::string const& above, std::string const& below)
{
    return "The difference between the minimum for " + above + " and the maximum for " + below +
           " must be equal to one.";
}

/// Presses a key in the field, which brings the question; the answer is No.
void PressAndDecline(TestSession& session, QLineEdit* field, Qt::Key key)
{
    session.expectBox(kQuestion, kNo);
    QTest::keyClick(field, key);
}

} // namespace

/// Entered data is protected from edits of the scale, and the boundaries are checked as the focus moves down.
class EditGuard final : public QObject {
    Q_OBJECT

private slots:
    void aKeyInAnyScaleFieldAsksFirstAndNoPutsTheTextBack()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        for (QString const& name : QString(kScaleFieldNames).split(u' ')) {
            QString const before = session.text(name);
            QLineEdit* const field = session.enterField(name);
            session.expectFields("fileresetfield=" + before);
            session.whileBoxIsUp = [&] { session.expectFields(name + u'=' + before); };
            field->deselect();
            PressAndDecline(session, field, Qt::Key_Backspace);
            session.expectFields(name + u'=' + before + " fileresetfield= numstudents=1"_L1);
            QVERIFY(field->cursorPosition() == before.size() && !field->hasSelectedText());
        }
    }

    void eachGainOfTheFocusPutsBackOneChange()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        QLineEdit* const field = session.enterField("bmax");
        PressAndDecline(session, field, Qt::Key_Left); // changes nothing: the stored text stays
        session.expectFields("bmax=87 fileresetfield=87");
        PressAndDecline(session, field, Qt::Key_6);
        PressAndDecline(session, field, Qt::Key_6);
        session.expectFields("bmax=876");
        session.enterField("bminusmax");
        session.enterField("bmax");
        PressAndDecline(session, field, Qt::Key_Backspace);
        session.expectFields("bmax=876");
    }

    void aFocusFromBeforeTheFirstEntryHasStoredNothing()
    {
        TestSession session;
        session.setFields("total=40");
        QLineEdit* const field = session.enterField("bmax");
        QTest::keyClick(field, Qt::Key_Return);
        PressAndDecline(session, field, Qt::Key_5);
        session.expectFields("bmax=5 numstudents=1");
    }

    void aStoredTextBelowOneIsNotPutBack()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        for (char const* const stored : {"0.9", "-3", "", "word"}) {
            session.setFields("dmax="_L1 + stored);
            PressAndDecline(session, session.enterField("dmax"), Qt::Key_5);
            session.expectFields("dmax=5");
            session.enterField("cmax");
        }
        session.setFields("dmax=1");
        PressAndDecline(session, session.enterField("dmax"), Qt::Key_5);
        session.expectFields("dmax=1");
    }

    void aKeyWithoutRoomAsksToo()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        session.setFields("amax=100");
        session.enterField("amax")->deselect();
        PressAndDecline(session, session.field("amax"), Qt::Key_5);
        session.expectFields("amax=100");
    }

    void aChangeWithoutAKeyIsPutBackWithoutAQuestion()
    {
        TestSession const session;
        session.enterScores("40", {"4", "8"});
        session.enterField("cmax");
        session.paste("12");
        session.enterField("bmax");
        session.chooseCommand("EditCut");
        session.expectFields("cmax=77 bmax=87 numstudents=2 fileresetfield=");
    }

    void yesThrowsTheEntriesAwayAndKeepsThePoints()
    {
        TestSession session;
        session.enterScores("40", {"4", "8"});
        session.setFields("missed=7 foundaproblem=x");
        session.expectBox(kQuestion, kYes);
        QTest::keyClicks(session.enterField("aplusmin"), u"96"_s); // one question for the two keys
        session.expectFields("aplusmin=96 total=40 pointstemp=40 missed=7 problem= foundaproblem=x");
        session.expectEmpty("fileresetfield numstudents average EditField1 percentage lettergrade lastmissed "
                            "correct agrade bgrade cgrade dgrade fgrade");
        session.expectEmpty(kHistoryLists);
    }

    void aBoundaryThatIsOffComesOutInWholeNumbers_data() { AddRows(kBoundaries); }

    void aBoundaryThatIsOffComesOutInWholeNumbers()
    {
        QFETCH(Boundary const*, row);
        TestSession session;
        auto const enter = [&](QString const& texts, QString const& expected) {
            QString const fields = row->upper + u"=%1 "_s + row->lower + u"=%2"_s;
            QString const after = fields.arg(expected.section(u' ', 0, 0), expected.section(u' ', 1));
            session.setFields(fields.arg(texts.section(u' ', 0, 0), texts.section(u' ', 1)));
            if (texts != expected) {
                session.expectBox(Notice(row->name, row->below));
            }
            session.whileBoxIsUp = [&] { session.expectFields(after); }; // mended before it is reported
            session.click(row->focus);
            QCoreApplication::processEvents();
            QVERIFY(session.allBoxesSeen());
            session.expectFields(after);
            session.enterField("total");
        };
        enter("50.5 49.5", "50.5 49.5");
        enter("50.5 49.6", "51 50");
        enter("50.5 49.4", "51 50");
        enter("50.5 words", "51 50");
        enter("6e1 59", "6e1 59"); // an exponent counts here
    }

    void aTextIsStoredAfterTheNoticeOfItsBoundary()
    {
        TestSession session;
        session.enterScores("40", {"4"});
        session.setFields("aplusmin=95");
        session.expectBox(Notice("an A+", "an A"));
        session.whileBoxIsUp = [&] { session.expectFields("fileresetfield="); };
        session.enterField("amin");
        session.expectFields("aplusmin=95 amax=94 fileresetfield=93");
    }

    void noticesOfTwoFieldsComeOneAfterTheOther()
    {
        TestSession session({{Notice("an A+", "an A")}, {Notice("an A", "an A-")}});
        session.setFields("aplusmin=95 aminusmax=80");
        session.whileBoxIsUp = [&] { QTest::keyClick(session.widget("total"), Qt::Key_Shift); };
        session.widget("amin")->setFocus();
        session.enterField("aminusmin");
    }

    void aNoticeThatIsDueComesBeforeAnInputMethodsText()
    {
        TestSession session({{Notice("an A+", "an A")}});
        session.setFields("aplusmin=95");
        session.whileBoxIsUp = [&] { session.expectFields("amin=93"); };
        session.widget("amin")->setFocus();
        SendInputMethod(session.field("amin"), "5");
        session.expectFields("amin=935");
    }

    void aNoticeThatIsDueComesBeforeAPressOfAButton()
    {
        TestSession session({{Notice("an A+", "an A")}});
        session.setFields("aplusmin=95");
        auto const* const button = session.widget<QPushButton>("PushButton3");
        session.whileBoxIsUp = [&] { QVERIFY(!button->isDown()); };
        session.widget("amin")->setFocus();
        session.clickOnScreen("PushButton3");
        session.expectFields("aplusmin=98 amax=97");
    }
};

GRADELOOM_TEST(EditGuard)
#include "test_edit_guard.moc"
