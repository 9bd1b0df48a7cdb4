#include "platform/printing.h"

#include "platform/qt/doors.h"
#include "platform/qt/guarded.h"
#include "platform/qt/system/print_job.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/top_level.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>

#include <cassert>

namespace {

/// Proposes a file to print to. Except on X11 the toolkit proposes a folder, which it then refuses.
void ProposeFile(QPrintDialog const& dialog)
{
    auto* const file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
    if (file != nullptr && file->text().endsWith(QLatin1Char('/'))) {
        file->setText(file->text() + QStringLiteral("print.pdf"));
    }
}

} // namespace

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

bool ShowPrintDialog(QPrinter& printer, int pages, std::string& fault)
{
    if (Runtime::instance().isEnding) {
        return false;
    }
    // Without a printer the system's own dialog silently fails to open; the toolkit's offers to print to a file.
    if (HasNativeDialogs() && printer.outputFormat() != QPrinter::NativeFormat) {
        fault = "no printer is set up";
        return false;
    }
    QPrintDialog dialog(&printer, Program::instance().front.window());
    dialog.setMinMax(1, pages);
    bool const hasPrinters = printer.outputFormat() == QPrinter::NativeFormat;
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, hasPrinters); // a file gets one copy
    ProposeFile(dialog);
    return RunDialog(dialog) == QDialog::Accepted;
}

std::unique_ptr<Graphics> OpenPrinterDialog(std::string_view title, int pages, std::string& fault)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageOrientation(QPageLayout::Portrait);
    printer->setFullPage(true);
    if (!PlatformDoors().printDialog(*printer, pages, fault)) {
        return nullptr;
    }
    printer->setFullPage(true); // setting up the page in the dialog restores its margins
    return std::make_unique<Graphics>(std::make_unique<PrintJob>(std::move(printer), ToQt(title)));
}
