#include "bench/measure.h"
#include "frame/clear_results.h"
#include "frame/form_state.h"
#include "platform/qt/doors.h"
#include "presenter/presenter.h"
#include "session/history.h"

#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

#include <unistd.h>

namespace {

constexpr Integer kFew = 10;
constexpr Integer kMany = 100000;

struct StockTable : QTableView {
    StockTable(QWidget& window, int left, int width) : QTableView(&window)
    {
        setGeometry(left, 0, width, 646);
        setModel(&model);
        verticalHeader()->hide();
    }

    void addRow(QStringList const& cells)
    {
        QList<QStandardItem*> items;
        for (QString const& cell : cells) {
            items += new QStandardItem(cell);
        }
        model.appendRow(items);
    }

    QStandardItemModel model;
};

void FillTo(Integer entries)
{
    class mainscreen& form = ::mainscreen();
    if (EntryCount(form) > entries) {
        ClearResults(form);
    }
    for (Integer entry = EntryCount(form) + 1; entry <= entries; ++entry) {
        form.numstudents().Text(Str(entry));
        AppendEntry(form, {entry, 90.0, 3.0, "A-", 90, 90.0 * static_cast<double>(entry)});
    }
    Paint();
}

void Press()
{
    ::mainscreen().missed().Text("3");
    ::mainscreen().PushButton1_Action();
    Paint();
}

void MeasurePress()
{
    QWidget window;
    StockTable table(window, 200, 431);
    std::array<QLineEdit, 9> fields;
    int top = 0;
    for (QLineEdit& field : fields) {
        field.setParent(&window);
        field.move(0, top += 30);
    }
    window.show();
    FillTo(kFew);
    auto const pressStock = [&] {
        QString const number = QString::number(table.model.rowCount());
        std::ranges::for_each(fields, [&](QLineEdit& field) { field.setText(number); });
        table.addRow({number, QStringLiteral("90"), QStringLiteral("%")});
        table.scrollToBottom();
        Paint();
    };
    Compare("a painted press: nine stock fields and a row", 301, 1.5, "us", ProcessorTime(pressStock),
            ProcessorTime(Press));
}

void PressAndUndo()
{
    Press();
    ::mainscreen()._EditUndo_Action();
    Paint();
}

/// A median of many, since only one form can be open: few and many entries take turns only a few times.
double MedianBehind(Integer entries)
{
    FillTo(entries);
    std::vector<double> times(101);
    std::ranges::generate(times, ProcessorTime(PressAndUndo));
    return Quantile(std::move(times), 0.5);
}

void WriteAndFlush(QString const& path, QByteArray const& bytes)
{
    QFile file(path);
    static_cast<void>(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    file.write(bytes);
    fsync(file.handle());
}

void MeasureExport()
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("percents"));
    PlatformDoors().fileDialog = [&](auto const&) { return path.toStdString(); };
    auto const exportAll = [] { ::mainscreen()._FileExport_Action(); };
    FillTo(kMany);
    exportAll();
    QFile file(path);
    static_cast<void>(file.open(QIODevice::ReadOnly));
    QByteArray const bytes = file.readAll();
    int copies = 0;
    auto const writeCopy = [&] { WriteAndFlush(folder.filePath(QString::number(++copies)), bytes); };
    Compare("export of 100000: one flushed write, by clock", 31, 1.5, "us", ClockTime(writeCopy),
            ClockTime(exportAll));
}

void MeasurePresenter()
{
    QWidget window;
    StockTable first(window, 0, 200);
    StockTable second(window, 210, 200);
    StockTable third(window, 420, 200);
    window.show();
    ::Window1().EditField1().Text("105");
    Paint();
    auto const fillStock = [&] {
        for (StockTable* const table : {&first, &second, &third}) {
            table->model.clear();
            for (int row = 0; row < 35; ++row) {
                table->addRow({QString::number(-row), QString::number(100.0 - row / 1.05)});
            }
        }
        Paint();
    };
    auto const fillChart = [] {
        ::Window1().PushButton1_Action();
        Paint();
    };
    Compare("Presenter of 105 points: three stock tables", 101, 1.5, "us", ProcessorTime(fillStock),
            ProcessorTime(fillChart));
    ::Window1().Close();
    Paint();
}

} // namespace

void MeasureEntries()
{
    ::mainscreen().total().Text("30");
    ::mainscreen().Show();
    Paint();
    MeasurePress();
    Compare(
        "press and Undo behind 100000: behind 10", 9, 1.05, "us", [] { return MedianBehind(kFew); },
        [] { return MedianBehind(kMany); });
    MeasureExport();
    MeasurePresenter();
}
