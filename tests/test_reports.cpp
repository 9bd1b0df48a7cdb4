#include "tests/harness.h"

#include <QFileDialog>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <tuple>

namespace {

/// A session of so many entries: entry n missed n of 200 points.
void Grade(TestSession& session, int entries)
{
    session.setFields("total=200");
    for (int n = 1; n <= entries; ++n) {
        session.setFields("missed=" + QByteArray::number(n));
        session.form().PushButton1_Action();
    }
}

struct Word {
    int page;
    double x, bottom; // in points from the top left of the page
    QString text;
};

/// The words of a PDF, page by page, block by block and line by line.
std::vector<Word> ReadPdf(QString const& path)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
    reader.waitForFinished();
    QRegularExpression const pattern(u"<page |<word xMin=\"(.*)\" yMin.* yMax=\"(.*)\">(.*)</"_s);
    std::vector<Word> words;
    int page = 0;
    for (auto const& match : pattern.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()))) {
        page += match.captured(3).isEmpty() ? 1 : 0;
        words.push_back(
            {page, match.captured(1).toDouble(), match.captured(2).toDouble(), match.captured(3)});
    }
    std::erase_if(words, [](Word const& word) { return word.text.isEmpty(); });
    auto const place = [](Word const& word) {
        return std::tuple(word.page, word.bottom > 100 && word.x > 290, qRound(word.bottom), word.x);
    };
    std::sort(words.begin(), words.end(), [&](auto& one, auto& other) { return place(one) < place(other); });
    return words;
}

} // namespace

/// The printed report, read back from a real PDF file, and the export.
class Reports final : public QObject {
    Q_OBJECT

private slots:
    void everyEntryStandsAtItsPlace()
    {
        for (int const entries : {1, 40, 41, 80, 81, 120, 121, 160, 161}) {
            TestSession session;
            Grade(session, entries);
            session.fileToChoose = session.pathOf("report.pdf");
            if (entries > 160) {
                session.expectBox("Gradeloom will only print the first 160 entries.");
            }
            session.chooseCommand("FilePrint");
            QVERIFY(session.allBoxesSeen());
            std::vector<Word> const words = ReadPdf(session.fileToChoose);
            QVERIFY(words.size() > 10);
            QCOMPARE(words.back().page, entries > 80 ? 2 : 1);
            double const depth = words.front().bottom - 50; // of the font below the heading's base line
            QStringList const letters = session.texts("ListBox4").split(u';');
            QString heading;
            int student = 0;
            for (std::size_t i = 0; i < words.size(); ++i) {
                if (words[i].text != "Student"_L1) {
                    heading += student == 0 ? words[i].text + u' ' : QString();
                    continue;
                }
                int const row = student % 40;
                double const left = student / 40 % 2 == 0 ? 50 : 300;
                QVERIFY(qAbs(words[i].x - left) < 0.1 && words[i].page == (student >= 80 ? 2 : 1));
                QVERIFY(qAbs(words[i].bottom - depth - (115 + 15 * row)) < 0.1);
                QCOMPARE(words[i + 2].text, letters[student]);
                ++student;
                QCOMPARE(words[i + 1].text, QString::number(student));
                QCOMPARE(words[i + 3].text, QString::number(100 - student / 2.0)); // n of 200 missed
                QVERIFY(words[i + 4].text == "%"_L1 && words[i + 4].x < words[i].x + 240);
            }
            QCOMPARE(student, qMin(entries, 160));
            QCOMPARE(heading, u"Results from Gradeloom Number of Students : %1 Class Average : %2 % "_s.arg(
                                  session.texts("numstudents"), session.texts("EditField1")));
        }
    }

    void theExportHoldsThePercentagesAndNothingIsLostByAFault()
    {
        TestSession session;
        session.expectBox("There is currently no data to send to the printer.");
        session.chooseCommand("FilePrint");
        session.expectBox("There is currently no data to export to disk.");
        session.chooseCommand("FileExport");
        Grade(session, 161);
        session.chooseCommand("FilePrint");               // cancelled: no limit message either
        QCOMPARE(session.dialogs.size(), std::size_t(1)); // none came before
        session.printFault = "no printer is set up";
        session.expectBox("The results could not be printed: no printer is set up.");
        session.chooseCommand("FilePrint"); // without a limit message
        session.printFault = "";
        session.chooseCommand("FileReset");
        Grade(session, 1);
        session.fileToChoose = session.pathOf("no/report.pdf");
        session.expectBox("The results could not be printed to the file \"report.pdf\": No such file or dir");
        session.chooseCommand("FilePrint");
        session.fileToChoose = session.pathOf("");
        session.expectBox("The file \"");
        session.chooseCommand("FileExport");
        session.chooseCommand("FileReset");
        session.enterScores("30", {"3", "4", "0", "30", "5"});
        session.chooseCommand("EditUndo");
        QVERIFY(session.dialogs.back().saving && session.dialogs.back().title == "Save your file");
        session.fileToChoose = session.pathOf("out");
        for (int repeat = 0; repeat < 2; ++repeat) {
            session.chooseCommand("FileExport");
            QCOMPARE(ContentOf(session.fileToChoose), "90\n86.666\n100\n0\n"_ba);
        }
    }

    void theRealDialogsLeadToRealFiles()
    {
        TestSession const session;
        session.useRealDialogs();
        session.enterScores("40", {"4"});
        QTimer::singleShot(0, qApp, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QCOMPARE(dialog->labelText(QFileDialog::FileName), "Enter a filename"_L1);
            QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(), "ExportedPercents"_L1);
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(session.pathOf("percents"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        session.chooseCommand("FileExport");
        QCOMPARE(ContentOf(session.pathOf("percents")), "90\n"_ba);
        session.activate();
        QTimer::singleShot(0, qApp, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            dialog->findChild<QLineEdit*>(u"filename"_s)->setText(session.pathOf("report.pdf"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        session.chooseCommand("FilePrint");
        QVERIFY(ContentOf(session.pathOf("report.pdf")).startsWith("%PDF"));
    }
};

GRADELOOM_TEST(Reports)
#include "test_reports.moc"
