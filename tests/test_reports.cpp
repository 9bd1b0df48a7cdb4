#include "tests/harness.h"

#include <QFileDialog>
#include <QGlyphRun>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRawFont>
#include <QRegularExpression>
#include <QTextLayout>
#include <QTimer>

#include <functional>

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

/// A word, in units of 1/72 inch from the top left of the paper. First comes the document's title, and each page
/// begins with a word without a text.
struct Word {
    QString text;
    double left = 0, bottom = 0;
};

/// The words of a PDF, in the order in which they were drawn.
std::vector<Word> ReadPdf(QString const& path)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-raw"_s, u"-bbox"_s, path, u"-"_s});
    if (!reader.waitForFinished()) {
        QTest::qFail("pdftotext, which is in the package poppler-utils, does not run", __FILE__, __LINE__);
    }
    static QRegularExpression const pattern(
        u"<page |<(?:title|word xMin=\"(.*)\" yMin.* yMax=\"(.*)\")>(.*)</"_s);
    std::vector<Word> words;
    for (auto const& match : pattern.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()))) {
        words.push_back({match.captured(3), match.captured(1).toDouble(), match.captured(2).toDouble()});
    }
    return words;
}

/// Adds the words of a line that begins at this place of its base line. A font that lacks a word's letters gives way
/// to another one, whose depth below the base line differs.
void AddLine(std::vector<Word>& words, double left, double baseLine, QString const& line)
{
    static QRegularExpression const pattern(u"[^ ]+"_s);
    QFont font(u"sans-serif"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(1200); // a hundred times as large, since small sizes are fitted to pixels
    QTextLayout layout(line, font);
    layout.beginLayout();
    QTextLine const drawn = layout.createLine();
    layout.endLayout();
    for (auto const& match : pattern.globalMatch(line)) {
        int const start = static_cast<int>(match.capturedStart());
        double const depth = layout.glyphRuns(start, 1).value(0).rawFont().descent();
        words.push_back({match.captured(), left + drawn.cursorToX(start) / 100, baseLine + depth / 100});
    }
}

/// What the report of the session must hold, or one of its two pages.
std::vector<Word> ReportOf(TestSession const& session, int page)
{
    std::vector<Word> words{{u"Results from Gradeloom"_s}};
    QStringList const letters = session.text("ListBox4").split(u';').mid(0, page == 1 ? 80 : 160);
    if (page != 2) {
        words.emplace_back();
        AddLine(words, 50, 50, "Results from Gradeloom");
        QString const summary = u"Number of Students : %1       Class Average :  %2 %"_s;
        AddLine(words, 50, 80, summary.arg(session.text("numstudents"), session.text("EditField1")));
    }
    for (int i = page == 2 ? 80 : 0; i < letters.size(); ++i) {
        if (i == 80) {
            words.emplace_back();
        }
        QString const line = u"Student  %1        %2            %3 %"_s.arg(i + 1).arg(letters[i]);
        AddLine(words, i / 40 % 2 == 0 ? 50 : 300, 115 + 15 * (i % 40), line.arg(100 - (i + 1) / 2.0));
    }
    return words;
}

void CompareReports(std::vector<Word> const& words, std::vector<Word> const& expected)
{
    QCOMPARE(words.size(), expected.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        QCOMPARE(words[i].text, expected[i].text);
        bool const isDown = qAbs(words[i].bottom - expected[i].bottom) < 0.1;
        bool const isInPlace = isDown && qAbs(words[i].left - expected[i].left) < 1;
        QVERIFY2(isInPlace, qPrintable(words[i].text));
    }
}

/// Does something to the next dialog as soon as it is open, which may be later than a timer's first turn.
void OnDialog(std::function<void(QWidget*)> const& act)
{
    QTimer::singleShot(1, qApp, [act] {
        QWidget* const dialog = QApplication::activeModalWidget();
        dialog == nullptr ? OnDialog(act) : act(dialog);
    });
}

} // namespace

/// The printed report, read back from a real PDF file, and the export.
class Reports final : public QObject {
    Q_OBJECT

private slots:
    void reportPlacesEveryWordInAnyLocale()
    {
        if (kIsWindows) {
            QSKIP("needs a program that reads PDF files back");
        }
        QMap<int, int> const pages = {{82, 1}, {122, 2}}; // the one chosen in the dialog
        for (int const entries : {1, 40, 41, 80, 81, 82, 120, 121, 122, 160, 161}) {
            int const page = pages.value(entries); // 0 is all
            // Every other report is made where digits and the decimal comma are others.
            QLocale::setDefault(entries % 2 == 0 ? QLocale(u"ar_EG"_s) : QLocale::system());
            TestSession session;
            Grade(session, entries);
            session.fileToChoose = session.pathOf("report.pdf");
            session.setUpPrinter = [page](QPrinter& printer) {
                QVERIFY(printer.fullPage() && printer.pageLayout().orientation() == QPageLayout::Portrait);
                printer.setFullPage(false);           // a page set up in the dialog has margins
                QCOMPARE(printer.resolution(), 1200); // the printer's own, not the screen's
                printer.setResolution(600);           // chosen in the dialog
                printer.setPrintRange(page > 0 ? QPrinter::PageRange : QPrinter::AllPages);
                printer.setFromTo(page, page);
            };
            if (entries > 160) {
                session.expectBox(
                    "Gradeloom will only print the first 160 entries. If you need to print more "
                    "scores than 160, please contact the author at " CONTACT);
            }
            session.play("FilePrint");
            CompareReports(ReadPdf(session.fileToChoose), ReportOf(session, page));
        }
    }

    void cancellingIsSilentAndFailuresGiveAReason()
    {
        TestSession session;
        Grade(session, 161);
        session.play("FilePrint; FileExport"); // no notice about the limit either
        QCOMPARE(session.dialogs.size(), std::size_t(2));
        session.printFault = "no printer is set up";
        session.expectBox("The results could not be printed: no printer is set up.");
        session.play("FilePrint; EditUndo");
        session.printFault.clear();
        // The toolkit would print to this one, whose driver asks for a file; but the system has no printer.
        session.setUpPrinter = [](QPrinter& printer) { printer.setOutputFileName(u"FILE:"_s); };
        session.fileToChoose = u"a printer"_s;
        session.expectBox("The results could not be printed: the printer \"\" did not take them.");
        session.play("FilePrint");
        session.setUpPrinter = [](QPrinter&) {};
        session.fileToChoose = session.pathOf("no/file");
        session.whileBoxIsUp = [&] { QVERIFY(!session.lastBox.ends_with(": .")); };
        session.expectBox("The results could not be printed to the file \"file\": ");
        session.expectBox("The file \"file\" could not be saved: ");
        session.play("FilePrint; FileExport");
    }

    void exportWritesTheListedPercentages()
    {
        TestSession session;
        session.fileToChoose = session.pathOf("out");
        session.play(
            "total=30; missed=3 Return; missed=4 Return; missed=0 Return; missed=30 Return; FileExport");
        QCOMPARE(ContentOf(session.fileToChoose), "90\n86.666\n100\n0\n"_ba);
        session.play("FileReset");
        Grade(session, 161); // there is no limit
        session.play("FileExport");
        QVERIFY(ContentOf(session.fileToChoose).endsWith("\n20\n19.5\n"));
    }

    void dialogsAreTheDesktopsOwn()
    {
        TestSession const session;
        PlatformDoors() = realDoors;
        OnDialog([](QWidget* widget) {
            auto* const dialog = qobject_cast<QFileDialog*>(widget);
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
            QCOMPARE(dialog->windowTitle(), "Select a Grading Scale"_L1);
            QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
        });
        session.play("FileOpen");
        session.activate();
        session.play("total=40; missed=4 Return");
        OnDialog([&](QWidget* widget) {
            auto* const dialog = qobject_cast<QFileDialog*>(widget);
            QCOMPARE(dialog->windowTitle(), "Save your file"_L1);
            QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
            // Elsewhere the toolkit's own alone shows the prompt.
            QCOMPARE(dialog->testOption(QFileDialog::DontUseNativeDialog), !kIsWindows);
            QCOMPARE(dialog->labelText(QFileDialog::FileName), "Enter a filename"_L1);
            QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(), "ExportedPercents"_L1);
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(session.pathOf("percents"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        session.play("FileExport");
        QCOMPARE(ContentOf(session.pathOf("percents")), "90\n"_ba);
        if (!kIsWindows) { // where the print dialog is the system's own, which can't be driven from here
            session.activate();
            OnDialog([](QWidget* widget) {
                auto* const dialog = qobject_cast<QPrintDialog*>(widget);
                QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
                QCOMPARE(dialog->maxPage(), 1);
            });
            session.play("FilePrint");
        }
    }
};

GRADELOOM_TEST(Reports)
#include "test_reports.moc"
