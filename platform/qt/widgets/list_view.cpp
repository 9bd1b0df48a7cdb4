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

QRect ListView::rowRect(int row) const
{
    return {0, rowViewportPosition(row), viewport()->width(), kRowHeight};
}

// --- painting

/// Paints whole rows: a number that runs on into the next column is part of what that column shows.
void ListView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    int const bottom = event->rect().bottom();
    int row = rowAt(event->rect().top()); // -1 below the last one
    while (row >= 0 && row < model()->rowCount() && rowViewportPosition(row) <= bottom) {
        drawRow(painter, row++);
    }
}

/// A number too wide for its column runs on into the free space of the next one, so that nothing is cut.
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

/// On a small screen the list itself may be partly out of sight, and the row that a key leads to with it.
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
        // A list that gains the focus asks for its first row. Made the current one in silence, it would never be
        // spoken: the first key has to lead there.
        return {};
    }
    int const last = model()->rowCount() - 1;
    QModelIndex const found =
        action == MoveHome || action == MoveEnd
            ? model()->index(action == MoveHome ? 0 : last, 0)
            : QTableView::moveCursor(action, modifiers).siblingAtColumn(0); // each key chooses a whole row
    if (found == currentIndex()) { // which may be scrolled out of sight
        scrollTo(found);
    }
    return found;
}

/// In the form that a spreadsheet reads: cells separated by tabs, rows by line ends.
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
