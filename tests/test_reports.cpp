#include "tests/harness.h"

#include <QFileDialog>
#include <QFontMetricsF>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <tuple>

namespace {

/// A session of so many entries: entry n missed n of 200 points.
void Grade(TestSession const& session, int entries)
{
    session.setFields("total=200");
    for (int n = 1; n <= entries; ++n) {
        session.setFields(u"missed=%1"_s.arg(n));
        session.form().PushButton1_Action();
    }
}

/// A word on a page, in units of 1/72 inch from the top left of the paper.
struct Word {
    int page;
    double left, right, bottom;
    QString text;

    [[nodiscard]] auto place() const { return std::tuple(page, qRound(bottom), left); }
};

/// The words of a PDF from the top left of each page to its bottom right, and the number of its pages.
std::pair<std::vector<Word>, int> ReadPdf(QString const& path)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
    reader.waitForFinished();
    static QRegularExpression const pattern(
        u"<page |<word xMin=\"(.*)\" yMin.* xMax=\"(.*)\" yMax=\"(.*)\">(.*)</"_s);
    std::vector<Word> words;
    int page = 0;
    for (auto const& match : pattern.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()))) {
        if (match.captured(4).isEmpty()) {
            ++page;
        } else {
            auto const number = [&](int part) { return match.captured(part).toDouble(); };
            words.push_back({page, number(1), number(2), number(3), match.captured(4)});
        }
    }
    std::ranges::sort(words, {}, &Word::place);
    return {words, page};
}

double WidthOf(QString const& text)
{
    QFont font(u"sans-serif"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(1200); // a hundred times as large, since small sizes are fitted to pixels
    return QFontMetricsF(font).horizontalAdvance(text) / 100;
}

/// Adds the words of a line that starts at this place and stands on this base line.
void AddLine(std::vector<Word>& words, int page, double left, double baseLine, QString const& line)
{
    static QRegularExpression const pattern(u"[^ ]+"_s);
    for (auto const& match : pattern.globalMatch(line)) {
        double const start = left + WidthOf(line.left(match.capturedStart()));
        words.push_back({page, start, start + WidthOf(match.captured()), baseLine, match.captured()});
    }
}

/// What the report of the session must hold.
std::vector<Word> ReportOf(TestSession const& session)
{
    std::vector<Word> words;
    AddLine(words, 1, 50, 50, "Results from Gradeloom");
    QString const summary = u"Number of Students : %1       Class Average :  %2 %"_s;
    AddLine(words, 1, 50, 80, summary.arg(session.text("numstudents"), session.text("EditField1")));
    QStringList const letters = session.text("ListBox4").split(u';');
    for (int i = 0; i < qMin(letters.size(), qsizetype(160)); ++i) {
        QString const line = u"Student  %1        %2            %3 %"_s.arg(i + 1).arg(letters[i]);
        AddLine(words, i < 80 ? 1 : 2, i / 40 % 2 == 0 ? 50 : 300, 115 + 15 * (i % 40),
                line.arg(100 - (i + 1) / 2.0));
    }
    std::ranges::sort(words, {}, &Word::place);
    return words;
}

} // namespace

/// The printed report, read back from a real PDF file, and the export.
class Reports final : public QObject {
    Q_OBJECT

private slots:
    void everyWordOfTheReportIsInItsPlace_data()
    {
        if (kIsWindows) {
            QSKIP("needs a program that reads PDF files back");
        }
        QTest::addColumn<int>("entries");
        for (int const entries : {1, 40, 41, 80, 81, 120, 121, 160, 161}) {
            QTest::addRow("%d entries", entries) << entries;
        }
    }
    void everyWordOfTheReportIsInItsPlace()
    {
        QFETCH(int, entries);
        TestSession session;
        Grade(session, entries);
        session.fileToChoose = session.pathOf("report.pdf");
        session.setUpPrinter = [](QPrinter& printer) {
            QVERIFY(printer.fullPage() && printer.pageLayout().orientation() == QPageLayout::Portrait);
            printer.setFullPage(false); // a page set up in the dialog has margins
        };
        if (entries > 160) {
            session.expectBox(
                "Gradeloom will only print the first 160 entries. If you need to print more scores");
        }
        session.chooseCommand("FilePrint");
        auto const [words, pages] = ReadPdf(session.fileToChoose);
        std::vector<Word> const expected = ReportOf(session);
        QCOMPARE(pages, entries > 80 ? 2 : 1);
        QCOMPARE(words.size(), expected.size());
        double const depth = words[0].bottom - expected[0].bottom; // of the font below its base line
        for (std::size_t i = 0; i < words.size(); ++i) {
            Word const& word = words[i];
            QCOMPARE(word.text, expected[i].text);
            bool const isAcross =
                qAbs(word.left - expected[i].left) < 1 && qAbs(word.right - expected[i].right) < 1;
            bool const isDown = qAbs(word.bottom - depth - expected[i].bottom) < 0.1;
            QVERIFY2(word.page == expected[i].page && isAcross && isDown, qPrintable(word.text));
        }
    }

    void aCancelledDialogEndsTheCommandInSilence()
    {
        TestSession session;
        Grade(session, 161);
        session.play("FilePrint; FileExport"); // no message about the limit either
        QCOMPARE(session.dialogs.size(), std::size_t(2));
        session.printFault = "no printer is set up";
        session.expectBox("The results could not be printed: no printer is set up.");
        session.play("FilePrint");
    }

    void whatCannotBeWrittenIsReportedWithItsReason()
    {
        TestSession session;
        Grade(session, 1);
        session.fileToChoose = session.pathOf("no/file");
        session.expectBox("The results could not be printed to the file \"file\": ");
        session.chooseCommand("FilePrint");
        QVERIFY(!session.lastBox.ends_with(": ."));
        session.expectBox("The file \"file\" could not be saved: ");
        session.chooseCommand("FileExport");
        QVERIFY(!session.lastBox.ends_with(": ."));
    }

    void theExportHoldsThePercentagesOfTheList()
    {
        TestSession session;
        session.enterScores("30", {"3", "4", "0", "30", "5"});
        session.chooseCommand("EditUndo");
        session.fileToChoose = session.pathOf("out");
        for (int repeat = 0; repeat < 2; ++repeat) {
            session.chooseCommand("FileExport");
            QCOMPARE(ContentOf(session.fileToChoose), "90\n86.666\n100\n0\n"_ba);
        }
        session.chooseCommand("FileReset");
        Grade(session, 161); // there is no limit
        session.chooseCommand("FileExport");
        QVERIFY(ContentOf(session.fileToChoose).endsWith("\n20\n19.5\n"));
        FileDialogRequest const& dialog = session.dialogs[0];
        QVERIFY(dialog.saving && dialog.title == "Save your file" && dialog.prompt == "Enter a filename");
        QCOMPARE(dialog.suggestedName, std::string("ExportedPercents"));
    }

    void theRealFileDialogLeadsToARealFile()
    {
        TestSession const session;
        TestSession::useRealDoors();
        session.enterScores("40", {"4"});
        QTimer::singleShot(1, qApp, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QCOMPARE(dialog->windowTitle(), "Save your file"_L1);
            QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
            // Elsewhere the toolkit's own alone shows the prompt.
            QCOMPARE(dialog->testOption(QFileDialog::DontUseNativeDialog), !kIsWindows);
            QCOMPARE(dialog->labelText(QFileDialog::FileName), "Enter a filename"_L1);
            QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(), "ExportedPercents"_L1);
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(session.pathOf("percents"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        session.chooseCommand("FileExport");
        QCOMPARE(ContentOf(session.pathOf("percents")), "90\n"_ba);
    }

    void theRealPrintDialogLeadsToARealFile()
    {
        if (kIsWindows) {
            QSKIP("the print dialog is the system's own, which can't be driven from here");
        }
        TestSession const session;
        TestSession::useRealDoors();
        session.enterScores("40", {"4"});
        QString proposed;
        QTimer::singleShot(1, qApp, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            auto* const file = dialog->findChild<QLineEdit*>(u"filename"_s);
            proposed = file->text();
            file->setText(session.pathOf("report.pdf"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        session.chooseCommand("FilePrint");
        QCOMPARE(QFileInfo(proposed).fileName(), "print.pdf"_L1);
        QVERIFY(ContentOf(session.pathOf("report.pdf")).startsWith("%PDF"));
    }
};

GRADELOOM_TEST(Reports)
#include "test_reports.moc"
