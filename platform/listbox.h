#pragma once

#include "platform/control.h"

#include <cstdint>

class ListModel;
class ListView;

/// Rows and columns of text, counted from 0. A read outside the list returns an empty text, a write is ignored.
/// Appending takes constant time. A hidden list ignores column widths and the selection type.
class Listbox final : public Control {
public:
    Listbox(QWidget* parent, std::string const& name, ControlProperties const& properties);

    enum Alignment { Default = 0, Left = 1, Right = 3 };

    /// Appends a row with this text in its first column, and scrolls to it.
    void AddRow(std::string_view text);
    /// Removes one row and scrolls to the last one that remains. Later rows move up.
    void RemoveRow(std::int64_t row);
    void DeleteAllRows();

    /// The text of a row's first column.
    [[nodiscard]] std::string List(std::int64_t row) const;
    [[nodiscard]] std::string Cell(std::int64_t row, int column) const;
    void Cell(std::int64_t row, int column, std::string_view text);
    void CellAlignment(std::int64_t row, int column, Alignment alignment);

    void ColumnCount(int count);
    /// Widths of the first columns in pixels, separated by commas; the others share what is left.
    void ColumnWidths(std::string_view widths);
    /// Column names for assistive programs, separated by commas; not shown.
    void SpokenHeaders(std::string_view headers);
    /// 0: one row can be selected at a time, 1: several.
    void RowSelectionType(int type);

    void Apply(ControlProperties const& properties) override;

private:
    void ShowLastRow();

    ListView* view_;  ///< the widget; null if the list is not shown
    ListModel* rows_; ///< a child of the widget
};
