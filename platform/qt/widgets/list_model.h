#pragma once

#include <QAbstractTableModel>

#include <string>
#include <string_view>
#include <vector>

/// The rows of a list, in UTF-8 as the program writes and reads them. Appending a row touches no other.
class ListModel final : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    struct CellContent {
        std::string text;
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    };

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Empty outside the list.
    [[nodiscard]] std::string text(int row, int column) const;
    void append(std::string_view text);
    void remove(int row);
    void clear();
    void setColumns(int count);
    void setHeaders(QStringList const& headers) { headers_ = headers; }
    void setText(int row, int column, std::string_view text);
    void setAlignment(int row, int column, Qt::Alignment alignment);

private:
    [[nodiscard]] CellContent const* cell(int row, int column) const;
    CellContent* makeCell(int row, int column);

    std::vector<std::vector<CellContent>> rows_;
    QStringList headers_; ///< of the first columns
    int columns_ = 1;
};
