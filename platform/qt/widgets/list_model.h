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
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void append(QString const& text);
    void remove(int row);
    void clear();
    void setColumns(int count);
    void setHeaders(QStringList const& headers) { headers_ = headers; }
    void setText(int row, int column, QString const& text);
    void setAlignment(int row, int column, Qt::Alignment alignment);

private:
    Cell* cell(int row, int column);

    std::vector<std::vector<Cell>> rows_;
    QStringList headers_; ///< of the first columns
    int columns_ = 1;
};
