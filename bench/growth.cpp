#include "bench/measure.h"
#include "frame/mainscreen.h"
#include "platform/qt/doors.h"
#include "presenter/presenter.h"

#include <QPixmapCache>
#include <QPrinter>
#include <QTemporaryDir>

#include <cstdio>

#include <malloc.h>

namespace {

/// Memory in KiB that this process has taken from the heap and not given back. The toolkit's cache of pictures is
/// emptied first: it grows up to a limit of its own.
double HeapAfter(int times, std::function<void()> const& step)
{
    for (int i = 0; i < times; ++i) {
        step();
        Paint();
    }
    QPixmapCache::clear();
    struct mallinfo2 const info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1024.0;
}

/// The heap after a thousand times against that after the first hundred, when other caches are full.
void MeasureHeap(char const* what, std::function<void()> const& step)
{
    double const first = HeapAfter(100, step);
    double const last = HeapAfter(900, step);
    std::printf("%-44s %5.3f (heap %.0f KiB after 100, %.0f KiB after 1000: %.2f KiB a time)\n", what,
                last / first, first, last, (last - first) / 900);
}

void GradeClass()
{
    class mainscreen& form = ::mainscreen();
    form.total().Text("30");
    for (int paper = 0; paper < 40; ++paper) {
        form.missed().Text(std::to_string(paper % 30));
        form.PushButton1_Action();
    }
    form._FilePrint_Action();
    form._FileExport_Action();
    form._FileReset_Action();
}

void ChartAndClose()
{
    ::Window1().EditField1().Text("105");
    ::Window1().PushButton1_Action();
    Paint();
    ::Window1().Close();
}

} // namespace

void MeasureGrowth()
{
    QTemporaryDir const folder;
    PlatformDoors().fileDialog = [&](auto const&) {
        return folder.filePath(QStringLiteral("percents")).toStdString();
    };
    PlatformDoors().printDialog = [&](QPrinter& printer, auto, auto&) {
        printer.setOutputFileName(folder.filePath(QStringLiteral("report.pdf")));
        return true;
    };
    MeasureHeap("a class of 40, printed, exported, reset", GradeClass);
    MeasureHeap("a Presenter opened, filled, closed", ChartAndClose);
}
