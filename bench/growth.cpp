#include "bench/measure.h"
#include "frame/mainscreen.h"
#include "platform/qt/doors.h"
#include "presenter/presenter.h"

#include <QMainWindow>
#include <QPixmapCache>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int kTimes = 1000;
constexpr int kFirst = 100;
constexpr int kClass = 40;

/// The heap after a thousand times against that after the first hundred, when other caches are full. The toolkit's
/// cache of pictures is emptied first: it grows up to a limit of its own.
void MeasureHeap(char const* what, Step const& step)
{
    double first = 0.0;
    double last = 0.0;
    for (int i = 1; i <= kTimes; ++i) {
        step();
        Paint();
        if (i == kFirst || i == kTimes) {
            QPixmapCache::clear();
            (i == kFirst ? first : last) = HeapInKib();
        }
    }
    std::printf("%-44s %5.3f (heap %.0f KiB after %d, %.0f KiB after %d: %.2f KiB a time)\n", what,
                last / first, first, kFirst, last, kTimes, (last - first) / (kTimes - kFirst));
}

void GradeClass()
{
    class mainscreen& form = ::mainscreen();
    form.total().Text("30");
    for (int paper = 0; paper < kClass; ++paper) {
        form.missed().Text(std::to_string(paper % 30));
        form.PushButton1_Action();
    }
    form._FilePrint_Action();
    form._FileExport_Action();
    form._FileReset_Action();
}

/// What a window with colours of its own costs that is not ours: for each one the toolkit draws new pictures of a
/// button, and it keeps their names even when it has dropped the pictures.
void ShowAndClose()
{
    QMainWindow window;
    window.resize(631, 646);
    window.setPalette(QPalette(QColor(239, 239, 239), QColor(96, 186, 202)));
    new QPushButton(QStringLiteral("Go"), &window);
    window.show();
    Paint();
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
    std::string file = folder.filePath(QStringLiteral("percents")).toStdString();
    PlatformDoors().fileDialog = [&](auto const&) { return file; };
    PlatformDoors().printDialog = [&](QPrinter& printer, auto, auto&) {
        printer.setOutputFileName(folder.filePath(QStringLiteral("report.pdf")));
        return true;
    };
    MeasureHeap("a class of 40, printed, exported, reset", GradeClass);
    MeasureHeap("the floor: a bare window with a button", ShowAndClose);
    MeasureHeap("a Presenter opened, filled, closed", ChartAndClose);
}
