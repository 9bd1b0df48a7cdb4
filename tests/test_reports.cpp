#include "tests/harness.h"

#include <QFileDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <tuple>

namespace {

/// A session of so many entries: entry n missed n of 200 points.
void Grade(Desk& desk, int entries)
{
    desk.write("total=200");
    for (int n = 1; n <= entries; ++n) {
        desk.write("missed=" + QByteArray::number(n));
        desk.form().PushButton1_Action();
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
#ifdef Q_OS_WIN
        QSKIP("needs a program that reads PDF files back");
#endif
        for (int const entries : {1, 40, 41, 80, 81, 120, 121, 160, 161}) {
            Desk desk;
            Grade(desk, entries);
            desk.chosen = desk.at("report.pdf");
            if (entries > 160) {
                desk.expect("Gradeloom will only print the first 160 entries.");
            }
            desk.choose("FilePrint");
            QVERIFY(desk.allSeen());
            std::vector<Word> const words = ReadPdf(desk.chosen);
            QVERIFY(words.size() > 10);
            QCOMPARE(words.back().page, entries > 80 ? 2 : 1);
            double const depth = words.front().bottom - 50; // of the font below the heading's base line
            QStringList const letters = desk.show("ListBox4").split(u';');
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
                                  desk.show("numstudents"), desk.show("EditField1")));
        }
    }

    void theExportHoldsThePercentagesAndNothingIsLostByAFault()
    {
        Desk desk;
        desk.expect("There is currently no data to send to the printer.");
        desk.choose("FilePrint");
        desk.expect("There is currently no data to export to disk.");
        desk.choose("FileExport");
        Grade(desk, 161);
        desk.choose("FilePrint");                    // cancelled: no limit message either
        QCOMPARE(desk.asked.size(), std::size_t(1)); // none came before
        auto const withPrinter = PlatformDoors().printDialog;
        PlatformDoors().printDialog = [](QPrinter&, std::string& fault) {
            fault = "no printer is set up";
            return false;
        };
        desk.expect("The results could not be printed: no printer is set up.");
        desk.choose("FilePrint"); // without a limit message
        PlatformDoors().printDialog = withPrinter;
        desk.choose("FileReset");
        Grade(desk, 1);
        desk.chosen = desk.at("no/report.pdf");
        desk.expect("The results could not be printed to the file \"report.pdf\": " + NoSuchFolder() + ".");
        desk.choose("FilePrint");
        desk.chosen = desk.at("");
        desk.expect("The file \"");
        desk.choose("FileExport");
        desk.choose("FileReset");
        desk.gradeAll("30", {"3", "4", "0", "30", "5"});
        desk.choose("EditUndo");
        QVERIFY(desk.asked.back().saving && desk.asked.back().title == "Save your file");
        desk.chosen = desk.at("out");
        for (int repeat = 0; repeat < 2; ++repeat) {
            desk.choose("FileExport");
            QCOMPARE(Content(desk.chosen), "90\n86.666\n100\n0\n"_ba);
        }
    }

    void theRealDialogsLeadToRealFiles()
    {
        Desk desk;
        PlatformDoors().fileDialog = ShowFileDialog;
        PlatformDoors().printDialog = ShowPrintDialog;
        desk.gradeAll("40", {"4"});
        QTimer::singleShot(0, qApp, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QCOMPARE(dialog->labelText(QFileDialog::FileName), "Enter a filename"_L1);
            QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(), "ExportedPercents"_L1);
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(desk.at("percents"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        desk.choose("FileExport");
        QCOMPARE(Content(desk.at("percents")), "90\n"_ba);
        desk.activate();
#ifdef Q_OS_WIN
        if (QPrinterInfo::availablePrinterNames().isEmpty()) {
            desk.expect("The results could not be printed: no printer is set up.");
            desk.choose("FilePrint");
        }
        return; // the system's own dialog can't be driven from here
#endif
        QTimer::singleShot(0, qApp, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            dialog->findChild<QLineEdit*>(u"filename"_s)->setText(desk.at("report.pdf"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        desk.choose("FilePrint");
        QVERIFY(Content(desk.at("report.pdf")).startsWith("%PDF"));
    }
};

GRADELOOM_TEST(Reports)
#include "test_reports.moc"
