#include "platform/printing.h"

#include "platform/qt/doors.h"
#include "platform/qt/guarded.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/system/save_file.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/top_level.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

#include <cassert>

namespace {

constexpr double kUnitsPerInch = 72.0;
constexpr int kFontHeight = 12;

/// On X11 alone the toolkit proposes a file to print to; elsewhere it proposes a folder, and then refuses it.
void ProposeFile(QPrintDialog const& dialog)
{
    auto* const file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
    if (file != nullptr && file->text().endsWith(QLatin1Char('/'))) {
        file->setText(file->text() + QStringLiteral("print.pdf"));
    }
}

} // namespace

/// What a job is drawn on: the printer, or for a file a document in memory that is saved when it is complete, so
/// that a full or unwritable disk is noticed and an older file survives it.
class PrintJob {
public:
    /// A printer queue and a viewer of the file call the document by this title.
    PrintJob(std::unique_ptr<QPrinter> printer, QString const& title) : printer_(std::move(printer))
    {
        printer_->setDocName(title);
        printer_->setCreator(QCoreApplication::applicationName());
        if (file().isEmpty()) {
            begin(*printer_, printer_->resolution());
        } else {
            document_.open(QIODevice::WriteOnly);
            writer_ = std::make_unique<QPdfWriter>(&document_);
            writer_->setTitle(title);
            writer_->setCreator(QCoreApplication::applicationName());
            writer_->setResolution(printer_->resolution());
            writer_->setPageLayout(printer_->pageLayout());
            begin(*writer_, printer_->resolution());
        }
    }

    /// The file that the job goes to, empty if it goes to a printer. With "FILE:", which no file can be called,
    /// Windows means that its printer driver will ask for the file itself.
    [[nodiscard]] QString file() const
    {
        QString const name = printer_->outputFileName();
        return name == QLatin1String("FILE:") ? QString() : name;
    }

    void draw(QPointF place, QString const& text)
    {
        if (painter_.isActive()) {
            painter_.drawText(place, text);
        }
    }

    void nextPage() { hasPages_ = hasPages_ && (writer_ ? writer_->newPage() : printer_->newPage()); }

    /// Ends the job. Returns the reason of a failure, empty if there was none.
    QString end()
    {
        bool const isDrawn = painter_.isActive() && painter_.end() && hasPages_;
        if (writer_ == nullptr) {
            QPrinter::PrinterState const state = printer_->printerState();
            bool const isSent = isDrawn && state != QPrinter::Error && state != QPrinter::Aborted;
            return isSent
                       ? QString()
                       : QStringLiteral("the printer \"%1\" did not take them").arg(printer_->printerName());
        }
        writer_.reset();
        return isDrawn ? ReplaceFile(file(), document_.data())
                       : QStringLiteral("its pages could not be drawn");
    }

private:
    void begin(QPaintDevice& device, int resolution)
    {
        hasPages_ = painter_.begin(&device);
        if (hasPages_) {
            QFont font(QStringLiteral("sans-serif"));
            font.setStyleHint(QFont::SansSerif);
            font.setPixelSize(kFontHeight);
            painter_.scale(resolution / kUnitsPerInch, resolution / kUnitsPerInch);
            painter_.setFont(font);
        }
    }

    std::unique_ptr<QPrinter> printer_;
    QBuffer document_;
    std::unique_ptr<QPdfWriter> writer_;
    QPainter painter_;
    bool hasPages_ = false;
};

Graphics::Graphics(std::unique_ptr<PrintJob> job) : job_(std::move(job)) {}

Graphics::~Graphics()
{
    QString const reason = job_->end();
    if (!reason.isEmpty()) {
        Raise(Failed, FromQt(QFileInfo(job_->file()).fileName()), FromQt(reason));
    }
}

void Graphics::DrawString(std::string_view text, double x, double y, [[maybe_unused]] double width,
                          [[maybe_unused]] bool condense)
{
    assert(width == 0.0 && !condense);
    job_->draw(QPointF(x, y), ToQt(text));
}

void Graphics::NextPage()
{
    job_->nextPage();
}

bool ShowPrintDialog(QPrinter& printer, std::string& fault)
{
    if (Runtime::instance().isEnding) {
        return false;
    }
    // Without a printer the system's own dialog does not come, and says nothing; the toolkit's offers a file.
    if (HasNativeDialogs() && printer.outputFormat() != QPrinter::NativeFormat) {
        fault = "no printer is set up";
        return false;
    }
    QPrintDialog dialog(&printer, Program::instance().front.window());
    ProposeFile(dialog);
    return RunDialog(dialog) == QDialog::Accepted;
}

std::unique_ptr<Graphics> OpenPrinterDialog(std::string_view title, std::string& fault)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageOrientation(QPageLayout::Portrait);
    printer->setFullPage(true);
    if (!PlatformDoors().printDialog(*printer, fault)) {
        return nullptr;
    }
    printer->setFullPage(true); // a page set up in the dialog has margins again
    return std::make_unique<Graphics>(std::make_unique<PrintJob>(std::move(printer), ToQt(title)));
}
