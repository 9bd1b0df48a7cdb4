#include "platform/qt/widgets/list_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int kRowHeight = 16; // pixels

} // namespace

ListView::ListView(QWidget* parent) : QTableView(parent)
{
    for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
        header->hide();
        header->setMinimumSectionSize(1);
    }
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    verticalScrollBar()->setSingleStep(kRowHeight);
}

void ListView::setColumnWidths(QString const& widths)
{
    QStringList const stated = widths.split(u',', Qt::SkipEmptyParts);
    for (int column = 0; column < model()->columnCount(); ++column) {
        bool const isFixed = column < stated.size();
        horizontalHeader()->setSectionResizeMode(column, isFixed ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (isFixed) {
            setColumnWidth(column, stated[column].toInt());
        }
    }
}

/// Rows have one height. The header, asked for their positions, would count all rows anew after each entry.
QRect ListView::rowRect(int row) const
{
    return {0, row * kRowHeight - verticalOffset(), viewport()->width(), kRowHeight};
}

QRect ListView::visualRect(QModelIndex const& index) const
{
    int const column = index.column();
    QRect const row = rowRect(index.row());
    return index.isValid() ? QRect(columnViewportPosition(column), row.y(), columnWidth(column), row.height())
                           : QRect();
}

// --- painting

/// Paints whole rows, since a wide number runs on into the next column.
void ListView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    int const first = (event->rect().top() + verticalOffset()) / kRowHeight;
    int const last = (event->rect().bottom() + verticalOffset()) / kRowHeight;
    for (int row = first; row <= std::min(last, model()->rowCount() - 1); ++row) {
        drawRow(painter, row);
    }
}

/// Texts are not clipped: a wide number runs on into the free space of the next column.
void ListView::drawRow(QPainter& painter, int row) const
{
    bool const isSelected = selectionModel()->isRowSelected(row);
    if (isSelected) {
        painter.fillRect(rowRect(row), palette().brush(QPalette::Highlight));
    }
    painter.setPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    for (int column = 0; column < model()->columnCount(); ++column) {
        QModelIndex const index = model()->index(row, column);
        int const alignment = index.data(Qt::TextAlignmentRole).toInt();
        bool const isRight = (alignment & Qt::AlignRight) != 0;
        painter.drawText(visualRect(index).adjusted(1, 0, isRight ? -4 : 0, 0),
                         alignment | Qt::TextDontClip | Qt::TextSingleLine, index.data().toString());
    }
}

// --- keys

void ListView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelectedRows();
        return;
    }
    QTableView::keyPressEvent(event);
    if (event->isAccepted() && currentIndex().isValid()) {
        scrollWindowToCurrentRow();
    }
}

/// On a small screen the window scrolls too, and the current row may be in a hidden part of the list.
void ListView::scrollWindowToCurrentRow()
{
    if (auto* const area = window()->findChild<QScrollArea*>()) {
        QRect const row = rowRect(currentIndex().row());
        QPoint const center = viewport()->mapTo(area->widget(), row.center());
        area->ensureVisible(center.x(), center.y(), row.width() / 2, kRowHeight);
    }
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveNext) {
        // The list has gained the focus. It gets no current row yet, so that the first key selects the first row
        // and a screen reader speaks it.
        return {};
    }
    QModelIndex found = QTableView::moveCursor(action, modifiers).siblingAtColumn(0);
    if (action == MoveHome) {
        found = model()->index(0, 0);
    } else if (action == MoveEnd) {
        found = model()->index(model()->rowCount() - 1, 0);
    }
    if (found == currentIndex()) {
        scrollTo(found); // no change of the current row does it
    }
    return found;
}

/// Copies as a spreadsheet expects it: cells separated by tabs, rows by line ends, in the order of the list.
void ListView::copySelectedRows() const
{
    QModelIndexList selected = selectionModel()->selectedRows();
    std::ranges::sort(selected, {}, &QModelIndex::row);
    QStringList lines;
    for (QModelIndex const& row : selected) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column) {
            cells += row.siblingAtColumn(column).data().toString();
        }
        lines += cells.join(u'\t');
    }
    if (!lines.isEmpty()) {
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
    }
}
