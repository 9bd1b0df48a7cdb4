#include "platform/listbox.h"

#include "platform/qt/text.h"
#include "platform/qt/widgets/list_model.h"
#include "platform/qt/widgets/list_view.h"

#include <limits>

namespace {

int ToRow(std::int64_t row)
{
    return row < 0 || row > std::numeric_limits<int>::max() ? -1 : static_cast<int>(row);
}

} // namespace

/// Most of what a list costs is its view, so one that is not shown has none.
Listbox::Listbox(QWidget* parent, std::string const& name, ControlProperties const& properties)
    : Control(properties.style.visible ? new ListView(parent) : new QWidget(parent), name),
      view_(dynamic_cast<ListView*>(&Widget())),
      rows_(new ListModel(&Widget()))
{
    if (view_ != nullptr) {
        view_->setModel(rows_);
    }
}

void Listbox::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, 0);
}

/// Scrolls after the current event but before the next paint, so that many new rows are laid out once.
void Listbox::ShowLastRow()
{
    if (view_ != nullptr) {
        QMetaObject::invokeMethod(view_, &ListView::scrollToBottom, Qt::QueuedConnection);
    }
}

void Listbox::AddRow(std::string_view text)
{
    rows_->append(text);
    ShowLastRow();
}

void Listbox::RemoveRow(std::int64_t row)
{
    rows_->remove(ToRow(row));
    ShowLastRow();
}

void Listbox::DeleteAllRows()
{
    rows_->clear();
}

std::string Listbox::List(std::int64_t row) const
{
    return Cell(row, 0);
}

std::string Listbox::Cell(std::int64_t row, int column) const
{
    return rows_->text(ToRow(row), column);
}

void Listbox::Cell(std::int64_t row, int column, std::string_view text)
{
    rows_->setText(ToRow(row), column, text);
}

void Listbox::CellAlignment(std::int64_t row, int column, Alignment alignment)
{
    Qt::Alignment const side = alignment == Right ? Qt::AlignRight : Qt::AlignLeft;
    rows_->setAlignment(ToRow(row), column, side);
}

void Listbox::ColumnCount(int count)
{
    rows_->setColumns(count);
}

void Listbox::ColumnWidths(std::string_view widths)
{
    if (view_ != nullptr) {
        view_->setColumnWidths(ToQt(widths));
    }
}

void Listbox::SpokenHeaders(std::string_view headers)
{
    rows_->setHeaders(ToQt(headers).split(u','));
}

void Listbox::RowSelectionType(int type)
{
    if (view_ != nullptr) {
        view_->setSelectionMode(type == 1 ? QAbstractItemView::ExtendedSelection
                                          : QAbstractItemView::SingleSelection);
    }
}
