#include "tests/harness.h"

#include <QAccessible>

namespace {

constexpr char const* kDeletesData = "You are about to change the grading scale";

/// Sets a field's text as an assistive program does.
void EditByAssistiveProgram(QWidget* field, QString const& text)
{
    QAccessible::queryAccessibleInterface(field)->setText(QAccessible::Value, text);
}

struct ProtectedField {
    char const* name;
    char const* text;
} const kProtected[] = {
    {"percentage", "90" },
    {"average",    "180"},
    {"problem",    ""   },
};

} // namespace

/// What assistive programs do is the user's doing, and goes round no guard.
class Accessibility final : public QObject {
    Q_OBJECT

private slots:
    void anEditIsAnsweredFirstAndThenTyped()
    {
        TestSession const session;
        EditByAssistiveProgram(session.widget("missed"), u"5\n"_s);
        session.expectFields("missed=");
        QCoreApplication::processEvents();
        session.expectFields("missed=5");
        QCOMPARE(QApplication::focusWidget(), session.widget("missed"));
        EditByAssistiveProgram(session.widget("amax"), u"123456"_s);
        QCoreApplication::processEvents();
        session.expectFields("amax=123");
    }

    void anEditMeetsTheGuards()
    {
        TestSession session;
        session.enterScores("40", {"4", "8"});
        session.expectBox("To change the number of points");
        EditByAssistiveProgram(session.widget("total"), u"50"_s);
        QCoreApplication::processEvents();
        session.expectBox(kDeletesData, kNo);
        EditByAssistiveProgram(session.widget("amin"), u"50"_s);
        QCoreApplication::processEvents();
        session.expectFields("total=40 amin=93 numstudents=2");
        session.expectBox(kDeletesData, kYes);
        EditByAssistiveProgram(session.widget("amin"), u"50"_s);
        QCoreApplication::processEvents();
        session.expectFields("amin=50 numstudents=");
    }

    void whatTheUserMayNotChangeIsPutBack_data() { AddRows(kProtected); }
    void whatTheUserMayNotChangeIsPutBack()
    {
        QFETCH(ProtectedField const*, row);
        TestSession const session;
        session.enterScores("40", {"4", "4"});
        EditByAssistiveProgram(session.widget(QLatin1String(row->name)), u"77"_s);
        QCoreApplication::processEvents();
        QCOMPARE(session.text(QLatin1String(row->name)), QLatin1String(row->text));
    }
};

GRADELOOM_TEST(Accessibility)
#include "test_accessibility.moc"
