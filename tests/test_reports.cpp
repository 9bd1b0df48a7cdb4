#include "tests/harness.h"

#include "platform/message_box.h"
#include "platform/qt/desktop_doors.h"
#include "platform/qt/text.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <tuple>

// The printed report, read back from a real PDF file, and the export.

namespace {

/// A session of so many entries: entry n missed n of 200 points.
void Grade(Desk& desk, int entries)
{
    desk.write("total", "200");
    for (int n = 1; n <= entries; ++n) {
        desk.write("missed", qPrintable(QString::number(n)));
        desk.press("PushButton1");
    }
}

struct Word {
    int page;
    double x;
    double bottom;
    QString text;
};

/// The words of a PDF with their places in points from the top left of the page, block by block and line by
/// line.
std::vector<Word> ReadPdf(QString const& path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")});
    reader.waitForFinished();
    static QRegularExpression const pattern(QStringLiteral(
        "<page |<word xMin=\"([^\"]*)\" yMin=\"[^\"]*\" xMax=\"[^\"]*\" yMax=\"([^\"]*)\">([^<]*)<"));
    std::vector<Word> words;
    int page = 0;
    auto matches = pattern.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()));
    while (matches.hasNext()) {
        QRegularExpressionMatch const match = matches.next();
        if (match.captured(3).isEmpty()) {
            ++page;
        } else {
            words.push_back(
                {page, match.captured(1).toDouble(), match.captured(2).toDouble(), match.captured(3)});
        }
    }
    auto const place = [](Word const& word) {
        return std::tuple(word.page, word.bottom > 100 && word.x > 290, qRound(word.bottom), word.x);
    };
    std::sort(words.begin(), words.end(), [&](auto& one, auto& other) { return place(one) < place(other); });
    return words;
}

/// Acts on a real dialog when it has come.
template <class Dialog, class Act>
void WhenShown(Act const& act)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        if (auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            act(*dialog);
        }
    });
    timer->start(10);
}

} // namespace

class TestReports : public QObject {
    Q_OBJECT

private slots:
    void everyEntryStandsAtItsPlace()
    {
        for (int const entries : {1, 40, 41, 80, 81, 120, 121, 160, 161}) {
            printAndReadBack(entries);
        }
    }

    void headingAndSummaryStandOnTheFirstPage()
    {
        QTemporaryDir folder;
        Desk desk;
        desk.gradeAll("30", {"3", "4", "4"});
        desk.printTo = FromQt(folder.filePath(QStringLiteral("report.pdf")));
        desk.choose("FilePrint");
        QStringList texts;
        for (Word const& word : ReadPdf(ToQt(desk.printTo))) {
            texts += word.text;
        }
        QCOMPARE(texts.mid(0, 21).join(u' '),
                 QStringLiteral("Results from Gradeloom Number of Students : 3 Class Average : 87 % "
                                "Student 1 A- 90 % Student 2 B"));
        QCOMPARE(desk.show("numstudents ListBox1"), QStringLiteral("3|1,90,%;2,86.666,%;3,86.666,%"));
    }

    void withoutEntriesNothingLeaves()
    {
        Desk desk;
        desk.expect("There is currently no data to send to the printer.");
        desk.choose("FilePrint");
        desk.expect("There is currently no data to export to disk.");
        desk.choose("FileExport");
        QVERIFY(desk.asked.empty() && desk.printDialogs == 0);
        Grade(desk, 161);
        desk.choose("FilePrint"); // cancelled: no limit message either
        QCOMPARE(desk.printDialogs, 1);
    }

    void aReportThatCannotBeWrittenIsTold()
    {
        QTemporaryDir folder;
        Desk desk;
        desk.gradeAll("40", {"4"});
        desk.printTo = FromQt(folder.filePath(QStringLiteral("no/report.pdf")));
        desk.expect(
            "The results could not be printed to the file \"report.pdf\": No such file or directory.");
        desk.choose("FilePrint");
        desk.printTo = FromQt(folder.filePath(QStringLiteral("report.pdf")));
        desk.choose("FilePrint");
        QVERIFY(Content(ToQt(desk.printTo)).startsWith("%PDF"));
        QCOMPARE(desk.show("numstudents"), QStringLiteral("1"));
    }

    void theExportHoldsThePercentagesOfTheList()
    {
        QTemporaryDir folder;
        Desk desk;
        desk.gradeAll("30", {"3", "4", "0", "30", "5"});
        desk.choose("EditUndo");
        desk.choose("FileExport"); // cancelled
        FileDialogRequest const request = desk.asked.back();
        QVERIFY(request.saving && request.title == "Save your file" && request.prompt == "Enter a filename" &&
                request.suggestedName == "ExportedPercents");
        desk.chosen = FromQt(folder.filePath(QStringLiteral("out")));
        for (int repeat = 0; repeat < 2; ++repeat) {
            desk.choose("FileExport");
            QCOMPARE(Content(ToQt(desk.chosen)), QByteArray("90\n86.666\n100\n0\n"));
        }
        desk.chosen = FromQt(folder.path());
        desk.expect("The file \"" + FromQt(QFileInfo(folder.path()).fileName()) + "\" could not be saved: ");
        desk.choose("FileExport");
        QCOMPARE(desk.show("numstudents"), QStringLiteral("4"));
    }

    void theRealDialogsLeadToRealFiles()
    {
        QTemporaryDir folder;
        QString const path = folder.filePath(QStringLiteral("percents"));
        QString const pdf = folder.filePath(QStringLiteral("report.pdf"));
        Desk desk;
        PlatformDoors().fileDialog = ShowFileDialog;
        PlatformDoors().printDialog = ShowPrintDialog;
        desk.gradeAll("40", {"4"});
        WhenShown<QFileDialog>([&](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Save your file"));
            QCOMPARE(dialog.labelText(QFileDialog::FileName), QStringLiteral("Enter a filename"));
            QCOMPARE(QFileInfo(dialog.selectedFiles().value(0)).fileName(),
                     QStringLiteral("ExportedPercents"));
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        desk.choose("FileExport");
        QCOMPARE(Content(path), QByteArray("90\n"));
        desk.activate();
        WhenShown<QPrintDialog>([&](QPrintDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(pdf);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        desk.choose("FilePrint");
        QVERIFY(Content(pdf).startsWith("%PDF"));
    }

private:
    static void printAndReadBack(int entries)
    {
        QTemporaryDir folder;
        Desk desk;
        Grade(desk, entries);
        desk.printTo = FromQt(folder.filePath(QStringLiteral("report.pdf")));
        if (entries > 160) {
            desk.expect(
                "Gradeloom will only print the first 160 entries. If you need to print more scores than 160, "
                "please contact the author at gradeloom@example.org");
        }
        desk.choose("FilePrint");
        QVERIFY(desk.allSeen());
        std::vector<Word> const words = ReadPdf(ToQt(desk.printTo));
        QVERIFY(words.size() > 10);
        QCOMPARE(words.back().page, entries > 80 ? 2 : 1);
        double const depth = words.front().bottom - 50; // what the font reaches below the heading's base line
        int student = 0;
        for (std::size_t i = 0; i + 1 < words.size(); ++i) {
            if (words[i].text == QLatin1String("Student")) {
                ++student;
                QCOMPARE(words[i + 1].text, QString::number(student));
                int const row = (student - 1) % 40;
                QVERIFY(qAbs(words[i].x - ((student - 1) / 40 % 2 == 0 ? 50 : 300)) < 0.1);
                QVERIFY(qAbs(words[i].bottom - depth - (115 + 15 * row)) < 0.1);
                QCOMPARE(words[i].page, student > 80 ? 2 : 1);
                QCOMPARE(words[i + 3].text, QString::number(100 - student / 2.0)); // n of 200 missed
                QVERIFY(words[i + 4].text == QLatin1String("%") && words[i + 4].x < words[i].x + 240);
            }
        }
        QCOMPARE(student, qMin(entries, 160));
    }
};

GRADELOOM_TEST(TestReports)
#include "test_reports.moc"
