#include "frame/clear_results.h"

#include <initializer_list>

namespace {

void Empty(class mainscreen& window, std::initializer_list<FieldAccessor> fields)
{
    for (FieldAccessor const field : fields) {
        (window.*field)().Text("");
    }
}

} // namespace

void ClearLastEntry(class mainscreen& window)
{
    Empty(window, {&mainscreen::correct, &mainscreen::lastmissed, &mainscreen::percentage,
                   &mainscreen::lettergrade, &mainscreen::average});
}

void ClearTalliesAndHistory(class mainscreen& window)
{
    Empty(window, {&mainscreen::agrade, &mainscreen::bgrade, &mainscreen::cgrade, &mainscreen::dgrade,
                   &mainscreen::fgrade, &mainscreen::EditField1});
    for (auto const list : kHistory) {
        (window.*list)().DeleteAllRows();
    }
}

void ClearResults(class mainscreen& window)
{
    ClearLastEntry(window);
    window.numstudents().Text("");
    ClearTalliesAndHistory(window);
}
