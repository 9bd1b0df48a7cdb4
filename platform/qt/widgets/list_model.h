#pragma once

#include <QAbstractTableModel>

#include <vector>

/// The rows of a list. Appending a row touches no other.
class ListModel final : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    struct Cell {
        QString text;
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    };

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;

    void append(QString const& text);
    void remove(int row);
    void clear();
    void setColumns(int count);
    void setText(int row, int column, QString const& text);
    void setAlignment(int row, int column, Qt::Alignment alignment);

private:
    Cell* cell(int row, int column);

    std::vector<std::vector<Cell>> rows_;
    int columns_ = 1;
};
