#include "platform/qt/widgets/list_model.h"

int ListModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ListModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : columns_;
}

QVariant ListModel::data(QModelIndex const& index, int role) const
{
    if (role == Qt::DisplayRole) {
        return QString::fromStdString(text(index.row(), index.column()));
    }
    if (role == Qt::TextAlignmentRole) {
        CellContent const* const found = cell(index.row(), index.column());
        return static_cast<int>(found != nullptr ? found->alignment : CellContent().alignment);
    }
    return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    bool const isHeader = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isHeader ? QVariant(headers_.value(section)) : QVariant();
}

std::string ListModel::text(int row, int column) const
{
    CellContent const* const found = cell(row, column);
    return found != nullptr ? found->text : std::string();
}

void ListModel::append(std::string_view text)
{
    int const row = rowCount();
    beginInsertRows({}, row, row);
    rows_.push_back({CellContent{std::string(text)}});
    endInsertRows();
}

void ListModel::remove(int row)
{
    if (row < 0 || row >= rowCount()) {
        return;
    }
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

void ListModel::clear()
{
    beginResetModel();
    rows_.clear();
    endResetModel();
}

void ListModel::setColumns(int count)
{
    if (count > columns_) {
        beginInsertColumns({}, columns_, count - 1);
        columns_ = count;
        endInsertColumns();
    } else if (count < columns_ && count >= 0) {
        beginRemoveColumns({}, count, columns_ - 1);
        columns_ = count;
        endRemoveColumns();
    }
}

void ListModel::setText(int row, int column, std::string_view text)
{
    if (CellContent* const found = cellToWrite(row, column)) {
        found->text = text;
        emit dataChanged(index(row, column), index(row, column));
    }
}

void ListModel::setAlignment(int row, int column, Qt::Alignment alignment)
{
    if (CellContent* const found = cellToWrite(row, column)) {
        found->alignment = alignment | Qt::AlignVCenter;
        emit dataChanged(index(row, column), index(row, column));
    }
}

/// Returns null outside the list, and for a cell that nothing was written to.
ListModel::CellContent const* ListModel::cell(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0) {
        return nullptr;
    }
    auto const& cells = rows_[static_cast<std::size_t>(row)];
    auto const at = static_cast<std::size_t>(column);
    return at < cells.size() ? &cells[at] : nullptr;
}

/// Creates the cell if it is missing; returns null outside the list.
ListModel::CellContent* ListModel::cellToWrite(int row, int column)
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columns_) {
        return nullptr;
    }
    auto& cells = rows_[static_cast<std::size_t>(row)];
    auto const at = static_cast<std::size_t>(column);
    if (cells.size() <= at) {
        cells.resize(at + 1);
    }
    return &cells[at];
}
