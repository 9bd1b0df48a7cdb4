#include "bench/measure.h"
#include "frame/clear_results.h"
#include "frame/form_state.h"
#include "platform/qt/doors.h"
#include "presenter/presenter.h"
#include "session/history.h"

#include <QFile>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>

#include <unistd.h>

namespace {

constexpr Integer kFew = 10;
constexpr Integer kMany = 100000;

/// Fields and tables of the toolkit in a window of their own.
struct Stock {
    Stock(int fieldCount, int tableCount)
    {
        auto* const layout = new QGridLayout(&window);
        for (int i = 0; i < std::max(fieldCount, tableCount); ++i) {
            if (i < fieldCount) {
                layout->addWidget(fields.emplace_back(new QLineEdit), i, 0);
            }
            if (i < tableCount) {
                layout->addWidget(tables.emplace_back(new QTableView), 0, 1 + i, std::max(1, fieldCount), 1);
                tables.back()->setModel(new QStandardItemModel(tables.back()));
                tables.back()->verticalHeader()->hide();
            }
        }
        window.resize(631, 646);
        window.show();
        Paint();
    }

    void addRow(int table, QStringList const& cells)
    {
        QList<QStandardItem*> items;
        for (QString const& cell : cells) {
            items += new QStandardItem(cell);
        }
        static_cast<QStandardItemModel*>(tables[static_cast<std::size_t>(table)]->model())->appendRow(items);
    }

    QWidget window;
    std::vector<QLineEdit*> fields;
    std::vector<QTableView*> tables;
};

void FillTo(Integer entries)
{
    class mainscreen& form = ::mainscreen();
    if (EntryCount(form) > entries) {
        ClearResults(form);
    }
    Entry entry = {
        .number = EntryCount(form),
        .percent = 90.0,
        .nummissed = 3.0,
        .letter = "A-",
        .classaverage = 90,
        .runningsum = 0.0,
    };
    while (entry.number < entries) {
        ++entry.number;
        entry.runningsum += entry.percent;
        form.numstudents().Text(Str(entry.number));
        AppendEntry(form, entry);
    }
    Paint();
}

void Press()
{
    ::mainscreen().missed().Text("3");
    ::mainscreen().PushButton1_Action();
    Paint();
}

double PressAndUndo()
{
    return ProcessorTime([] {
        Press();
        ::mainscreen()._EditUndo_Action();
        Paint();
    });
}

void MeasurePress()
{
    constexpr int kRuns = 301;
    Stock stock(9, 1);
    FillTo(kFew);
    Runs runs;
    for (int i = 0; i < kRuns; ++i) {
        double const floor = ProcessorTime([&] {
            for (QLineEdit* const field : stock.fields) {
                field->setText(QString::number(i));
            }
            stock.addRow(0, {QString::number(i), QStringLiteral("90"), QStringLiteral("%")});
            stock.tables[0]->scrollToBottom();
            Paint();
        });
        runs.add(floor, ProcessorTime(Press));
    }
    PrintRatio("a painted press: nine stock fields and a row", runs, 1.5, "us");
}

/// Few and many entries take turns a few times: only one form can be open.
void MeasureGrowthOfPress()
{
    constexpr int kRounds = 5;
    constexpr int kRuns = 101;
    Runs runs;
    for (int round = 0; round < kRounds; ++round) {
        std::vector<double> few(kRuns);
        std::vector<double> many(kRuns);
        FillTo(kFew);
        std::ranges::generate(few, PressAndUndo);
        FillTo(kMany);
        std::ranges::generate(many, PressAndUndo);
        for (int i = 0; i < kRuns; ++i) {
            runs.add(few[static_cast<std::size_t>(i)], many[static_cast<std::size_t>(i)]);
        }
    }
    PrintRatio("press and Undo behind 100000: behind 10", runs, 1.05, "us");
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
    constexpr int kRuns = 31;
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("percents"));
    PlatformDoors().fileDialog = [&](auto const&) { return path.toStdString(); };
    FillTo(kMany);
    Runs clock;
    Runs processor;
    for (int i = 0; i <= kRuns; ++i) {
        double ours = 0.0;
        double const oursClock =
            ClockTime([&] { ours = ProcessorTime([] { ::mainscreen()._FileExport_Action(); }); });
        QFile file(path);
        static_cast<void>(file.open(QIODevice::ReadOnly));
        QByteArray const bytes = file.readAll();
        double floor = 0.0;
        QString const other = folder.filePath(QStringLiteral("floor%1").arg(i));
        double const floorClock =
            ClockTime([&] { floor = ProcessorTime([&] { WriteAndFlush(other, bytes); }); });
        clock.add(floorClock, oursClock);
        processor.add(floor, ours);
    }
    PrintRatio("export of 100000: one flushed write, by clock", clock, 1.5, "us");
    PrintRatio("export of 100000: the same, processor alone", processor, 1.5, "us");
    FillTo(0);
    ::mainscreen().BevelButton1_Action();
}

void MeasurePresenter()
{
    constexpr int kRuns = 101;
    constexpr int kRows[] = {36, 35, 35};
    Stock stock(0, 3);
    ::Window1().EditField1().Text("105");
    Paint();
    Runs runs;
    for (int i = 0; i < kRuns; ++i) {
        double const floor = ProcessorTime([&] {
            for (int table = 0; table < 3; ++table) {
                auto* const model =
                    static_cast<QStandardItemModel*>(stock.tables[static_cast<std::size_t>(table)]->model());
                model->clear();
                for (int row = 0; row < kRows[table]; ++row) {
                    stock.addRow(table, {QString::number(-row), QString::number(100.0 - row / 1.05)});
                }
            }
            Paint();
        });
        runs.add(floor, ProcessorTime([] {
                     ::Window1().PushButton1_Action();
                     Paint();
                 }));
    }
    PrintRatio("Presenter of 105 points: three stock tables", runs, 1.5, "us");
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
    MeasureGrowthOfPress();
    MeasureExport();
    MeasurePresenter();
}
