#include "tests/harness.h"

#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

constexpr char const* kLists = "ListBox1 ListBox2 ListBox5";

// clang-format off
struct { char const* points; char const* rows; char const* last; } const kCharts[] = {
    {"",     "1 0 0",   "0,NaN"}, {"words", "1 0 0",    "0,NaN"},  {"-0.5", "1 0 0",  "0,NaN"}, {"-3", "0 0 0",   ""},
    {"1",    "2 0 0",   "-1,0"},  {"1e2",   "2 0 0",    "-1,0"},   {"12.9", "13 0 0", "-12,0"}, {"35", "36 0 0",  "-35,0"},
    {"36",   "36 1 0",  "-36,0"}, {"70",    "36 35 0",  "-70,0"},  {"71", "36 35 1",  "-71,0"}, {"105.9", "36 35 35", "-105,0"},
};
// clang-format on

void Chart(Desk const& desk, char const* points)
{
    desk.type("EditField1", points, "Window1");
    QTest::keyClick(desk.widget("EditField1", "Window1"), Qt::Key_Return);
}

} // namespace

/// The chart of percentages for a number of points.
class Presenter final : public QObject {
    Q_OBJECT

private slots:
    void theChartSplitsIntoThreePairsAndStartsAnewAtEachPress()
    {
        Desk desk;
        desk.choose("filepresent");
        for (auto const& [points, rows, last] : kCharts) {
            Chart(desk, points);
            QString counts;
            QString lastRow;
            for (QString const& list : desk.show(kLists, "Window1").split(u'|')) {
                counts += QString::number(list.isEmpty() ? 0 : list.count(u';') + 1) + u' ';
                lastRow = list.isEmpty() ? lastRow : list.split(u';').last();
            }
            QCOMPARE(counts + lastRow, rows + u" "_s + last);
        }
        desk.expect("This feature of Gradeloom can only present 105 percentages.");
        Chart(desk, "106");
        QCOMPARE(
            desk.show("EditField1 ListBox1 ListBox2 ListBox3 ListBox4 ListBox5 ListBox6 ListBox7", "Window1"),
            "106|||||||"_L1);
    }

    void everyRowStandsInItsPlaceAndInSight()
    {
        Desk const desk;
        desk.choose("filepresent");
        Chart(desk, "80");
        for (char const* const row :
             {"0,100;-1,98.75;", ";-35,56.25|-36,55;", ";-70,12.5|-71,11.25;", ";-80,0"}) {
            QVERIFY2(desk.show(kLists, "Window1").contains(row), row);
        }
        auto const* const list = static_cast<QTableView*>(desk.widget("ListBox1", "Window1"));
        QRect const all =
            list->visualRect(list->model()->index(0, 0)) | list->visualRect(list->model()->index(35, 1));
        QVERIFY(list->viewport()->rect().contains(all));
        QVERIFY(!desk.widget("ListBox3", "Window1")->isVisible());
    }
};

GRADELOOM_TEST(Presenter)
#include "test_presenter.moc"
