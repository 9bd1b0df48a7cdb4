#pragma once

#include <QTableView>

/// The widget of a list: rows of one height, columns that fill the width, no grid, no headers in sight, no elided text.
/// It is a table view because assistive programs then know the list as a table and can name its columns.
class ListView final : public QTableView {
public:
    explicit ListView(QWidget* parent);

    /// Widths of the first columns in pixels, separated by commas; the others share what is left.
    void setColumnWidths(QString const& widths);

    [[nodiscard]] QRect visualRect(QModelIndex const& index) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    [[nodiscard]] QRect rowRect(int row) const;
    void drawRow(QPainter& painter, int row) const;
    void copySelectedRows() const;
    void scrollWindowToCurrentRow();
};
