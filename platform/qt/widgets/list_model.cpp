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
    if (!index.isValid()) {
        return {};
    }
    auto const& row = rows_[static_cast<std::size_t>(index.row())];
    auto const column = static_cast<std::size_t>(index.column());
    Cell const& found = column < row.size() ? row[column] : Cell();
    if (role == Qt::DisplayRole) {
        return found.text;
    }
    return role == Qt::TextAlignmentRole ? QVariant(static_cast<int>(found.alignment)) : QVariant();
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    bool const isHeader = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isHeader ? QVariant(headers_.value(section)) : QVariant();
}

void ListModel::append(QString const& text)
{
    int const row = rowCount();
    beginInsertRows({}, row, row);
    rows_.push_back({Cell{text}});
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

void ListModel::setText(int row, int column, QString const& text)
{
    if (Cell* const found = cell(row, column)) {
        found->text = text;
        emit dataChanged(index(row, column), index(row, column));
    }
}

void ListModel::setAlignment(int row, int column, Qt::Alignment alignment)
{
    if (Cell* const found = cell(row, column)) {
        found->alignment = alignment | Qt::AlignVCenter;
        emit dataChanged(index(row, column), index(row, column));
    }
}

/// The cell at this place, made if the row is still shorter; null outside the list.
ListModel::Cell* ListModel::cell(int row, int column)
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
