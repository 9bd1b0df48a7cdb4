#pragma once

#include "platform/qt/widgets/list_model.h"

#include <QTableView>

/// The widget of a list: rows of one height, without grid, headers or elided texts. It computes the places of its
/// cells itself: the headers of a table view make it slow to start, and slower with each row.
class ListView final : public QTableView {
public:
    /// Takes ownership of the rows.
    ListView(QWidget* parent, ListModel* rows);

    void setColumnWidths(QString const& widths);
    void setSelectionModel(QItemSelectionModel* selection) override;

    [[nodiscard]] QRect visualRect(QModelIndex const& index) const override;
    [[nodiscard]] QModelIndex indexAt(QPoint const& place) const override;
    void scrollTo(QModelIndex const& index, ScrollHint hint = EnsureVisible) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    void rowsInserted(QModelIndex const& parent, int first, int last) override;
    void scrollContentsBy(int dx, int dy) override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(QRect const& rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(QItemSelection const& selection) const override;

private:
    [[nodiscard]] int rowAtHeight(int y) const;
    [[nodiscard]] QRect rowRect(int first, int last) const;
    [[nodiscard]] int columnLeft(int column) const;
    void drawRow(QPainter& painter, int row) const;
    void copySelectedRows() const;
    void showCurrentRow();

    ListModel* rows_;
    std::vector<int> widths_; ///< of the first columns
};
