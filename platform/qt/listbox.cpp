#include "platform/listbox.h"

#include "platform/qt/text.h"
#include "platform/qt/widgets/list_view.h"

#include <limits>

namespace {

int ToRow(std::int64_t row)
{
    return row < 0 || row > std::numeric_limits<int>::max() ? -1 : static_cast<int>(row);
}

ListView& View(Listbox const& list)
{
    return static_cast<ListView&>(list.Widget());
}

void ShowLastRow(Listbox const& list)
{
    if (!View(list).isHidden()) {
        View(list).scrollToBottom();
    }
}

} // namespace

Listbox::Listbox(QWidget* parent, std::string const& name) : Control(new ListView(parent), name)
{
    RowSelectionType(0);
}

void Listbox::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, 0);
}

void Listbox::AddRow(std::string_view text)
{
    View(*this).rows().append(text);
    ShowLastRow(*this);
}

void Listbox::RemoveRow(std::int64_t row)
{
    View(*this).rows().remove(ToRow(row));
    ShowLastRow(*this);
}

void Listbox::DeleteAllRows()
{
    View(*this).rows().clear();
}

std::string Listbox::List(std::int64_t row) const
{
    return Cell(row, 0);
}

std::string Listbox::Cell(std::int64_t row, int column) const
{
    return View(*this).rows().text(ToRow(row), column);
}

void Listbox::Cell(std::int64_t row, int column, std::string_view text)
{
    View(*this).rows().setText(ToRow(row), column, text);
}

void Listbox::CellAlignment(std::int64_t row, int column, Alignment alignment)
{
    Qt::Alignment const side = alignment == Right ? Qt::AlignRight : Qt::AlignLeft;
    View(*this).rows().setAlignment(ToRow(row), column, side);
}

void Listbox::ColumnCount(int count)
{
    View(*this).rows().setColumns(count);
}

void Listbox::ColumnWidths(std::string_view widths)
{
    View(*this).setColumnWidths(ToQt(widths));
}

void Listbox::SpokenHeaders(std::string_view headers)
{
    View(*this).rows().setHeaders(ToQt(headers).split(u','));
}

void Listbox::RowSelectionType(int type)
{
    View(*this).setSelectionMode(type == 1 ? QAbstractItemView::ExtendedSelection
                                           : QAbstractItemView::SingleSelection);
}
