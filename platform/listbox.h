#pragma once

#include "platform/control.h"

#include <cstdint>

class ListModel;
class ListView;

/// A list of rows with one or more columns of text. Rows and columns count from 0; a read outside the list
/// returns an empty text, a write outside it is ignored. A list that is not shown keeps its rows but has no view;
/// it ignores widths and the type of selection.
class Listbox final : public Control {
public:
    Listbox(QWidget* parent, std::string const& name, ControlProperties const& properties);

    /// How a cell's text is aligned.
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
    /// What assistive programs call the columns, separated by commas; nothing of it is shown.
    void SpokenHeaders(std::string_view headers);
    /// 0: one row can be selected at a time, 1: several.
    void RowSelectionType(int type);

    void Apply(ControlProperties const& properties) override;

private:
    void ShowLastRow();

    ListView* view_;  ///< the widget; null if the list is not shown
    ListModel* rows_; ///< a child of the widget
};
