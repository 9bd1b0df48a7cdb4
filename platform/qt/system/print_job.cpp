#include "platform/qt/system/print_job.h"

#include "platform/qt/system/save_file.h"

#include <QCoreApplication>
#include <QPrinterInfo>
#include <QTemporaryFile>

namespace {

/// Whether the printer exists and is neither stopped nor in error.
bool IsReady(QString const& printerName)
{
    QPrinterInfo const printer = QPrinterInfo::printerInfo(printerName);
    return !printer.isNull() && printer.state() != QPrinter::Error && printer.state() != QPrinter::Aborted;
}

/// Whether there is room for a job in the folder for temporary files, where the toolkit stores it before sending it.
bool HasRoomForJob()
{
    constexpr qint64 kLargestJob = 1'000'000; // bytes, 20 times a full report
    QTemporaryFile probe;
    return probe.open() && probe.write(QByteArray(kLargestJob, ' ')) == kLargestJob && probe.flush();
}

} // namespace

PrintJob::PrintJob(std::unique_ptr<QPrinter> printer, QString const& title) : printer_(std::move(printer))
{
    printer_->setDocName(title);
    printer_->setCreator(QCoreApplication::applicationName());
    if (file().isEmpty()) {
        // Otherwise the toolkit would lose the job silently.
        if (IsReady(printer_->printerName()) && HasRoomForJob()) {
            begin(*printer_);
        }
    } else {
        document_.open(QIODevice::WriteOnly);
        writer_ = std::make_unique<QPdfWriter>(&document_);
        writer_->setTitle(title);
        writer_->setCreator(QCoreApplication::applicationName());
        writer_->setResolution(printer_->resolution());
        writer_->setPageLayout(printer_->pageLayout());
        begin(*writer_);
    }
}

QString PrintJob::file() const
{
    // On Windows "FILE:", which can't be a file's name, means that the printer driver asks for the file.
    QString const name = printer_->outputFileName();
    return name == QLatin1String("FILE:") ? QString() : name;
}

void PrintJob::draw(QPointF start, QString const& text)
{
    if (painter_.isActive() && isPageChosen()) {
        painter_.drawText(start, text);
    }
}

void PrintJob::nextPage()
{
    bool const wasChosen = isPageChosen();
    ++page_;
    if (wasChosen && isPageChosen()) { // else none has been started, or none follows
        hasPages_ = hasPages_ && (writer_ ? writer_->newPage() : printer_->newPage());
    }
}

/// The dialog's other choices, a list of pages and odd or even pages, are carried out by the print server.
bool PrintJob::isPageChosen() const
{
    return printer_->printRange() != QPrinter::PageRange ||
           (page_ >= printer_->fromPage() && page_ <= printer_->toPage());
}

QString PrintJob::end()
{
    bool const isDrawn = painter_.isActive() && painter_.end() && hasPages_;
    if (writer_ == nullptr) {
        QPrinter::PrinterState const state = printer_->printerState();
        bool const isSent = isDrawn && state != QPrinter::Error && state != QPrinter::Aborted;
        return isSent ? QString()
                      : QStringLiteral("the printer \"%1\" did not take them").arg(printer_->printerName());
    }
    writer_.reset();
    return isDrawn ? ReplaceFile(file(), document_.data()) : QStringLiteral("its pages could not be drawn");
}

void PrintJob::begin(QPaintDevice& device)
{
    constexpr double kUnitsPerInch = 72.0;
    constexpr int kFontHeight = 12;
    hasPages_ = painter_.begin(&device);
    if (hasPages_) {
        double const scale = printer_->resolution() / kUnitsPerInch;
        QFont font(QStringLiteral("sans-serif"));
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(kFontHeight);
        painter_.scale(scale, scale);
        painter_.setFont(font);
    }
}
