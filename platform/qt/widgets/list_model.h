#pragma once

#include <QAbstractTableModel>

#include <string>
#include <string_view>
#include <vector>

/// The rows of a list. Texts are UTF-8, as the program writes and reads them.
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

    /// The text of a cell; empty outside the list.
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
    CellContent* cellToWrite(int row, int column);

    std::vector<std::vector<CellContent>> rows_;
    QStringList headers_; ///< later columns have none
    int columns_ = 1;
};
