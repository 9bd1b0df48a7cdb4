#include "platform/qt/widgets/list_view.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace {

constexpr int kRowHeight = 16; // pixels

} // namespace

ListView::ListView(QWidget* parent, ListModel* rows) : QTableView(parent), rows_(rows)
{
    rows_->setParent(this);
    verticalHeader()->hide();
    horizontalHeader()->hide();
    findChild<QAbstractButton*>()->hide(); // the corner between them
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(SingleSelection);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past both headers
    QAbstractItemView::setModel(rows_);
    connect(rows_, &ListModel::rowsRemoved, this, &ListView::updateGeometries);
    connect(rows_, &ListModel::modelReset, this, &ListView::updateGeometries);
}

/// The headers have no rows to select.
void ListView::setSelectionModel(QItemSelectionModel* selection)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past both headers
    QAbstractItemView::setSelectionModel(selection);
}

void ListView::setColumnWidths(QString const& widths)
{
    widths_.clear();
    for (QString const& width : widths.split(u',', Qt::SkipEmptyParts)) {
        widths_.push_back(width.toInt());
    }
    viewport()->update();
}

// --- the places of the cells

int ListView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

int ListView::rowAtHeight(int y) const
{
    return (y + verticalOffset()) / kRowHeight;
}

QRect ListView::rowRect(int first, int last) const
{
    return {0, first * kRowHeight - verticalOffset(), viewport()->width(), (last - first + 1) * kRowHeight};
}

/// Where a column starts, and the one before it ends. Columns without a width have equal shares of what is left; pixels
/// that remain go to the first of them.
int ListView::columnLeft(int column) const
{
    auto const stated = std::min(static_cast<int>(widths_.size()), rows_->columnCount());
    auto const widthOf = [this](int count) {
        return std::accumulate(widths_.begin(), widths_.begin() + count, 0);
    };
    if (column <= stated) {
        return widthOf(column);
    }
    int const others = rows_->columnCount() - stated;
    int const room = std::max(viewport()->width() - widthOf(stated), 0);
    int const before = column - stated;
    return widthOf(stated) + before * (room / others) + std::min(before, room % others);
}

QRect ListView::visualRect(QModelIndex const& index) const
{
    if (!index.isValid()) {
        return {};
    }
    int const left = columnLeft(index.column());
    int const top = rowRect(index.row(), index.row()).top();
    return {left, top, columnLeft(index.column() + 1) - left, kRowHeight};
}

QModelIndex ListView::indexAt(QPoint const& place) const
{
    int column = -1;
    while (column < rows_->columnCount() && columnLeft(column + 1) <= place.x()) {
        ++column;
    }
    return rows_->index(rowAtHeight(place.y()), column);
}

void ListView::scrollTo(QModelIndex const& index, ScrollHint /*hint*/)
{
    QRect const row = rowRect(index.row(), index.row());
    if (row.top() < 0) {
        verticalScrollBar()->setValue(verticalOffset() + row.top());
    } else if (row.bottom() >= viewport()->height()) {
        verticalScrollBar()->setValue(verticalOffset() + row.bottom() + 1 - viewport()->height());
    }
}

void ListView::updateGeometries()
{
    verticalScrollBar()->setSingleStep(kRowHeight);
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, rows_->rowCount() * kRowHeight - viewport()->height());
    viewport()->update();
}

void ListView::rowsInserted(QModelIndex const& parent, int first, int last)
{
    QTableView::rowsInserted(parent, first, last);
    updateGeometries();
}

void ListView::scrollContentsBy(int dx, int dy)
{
    scrollDirtyRegion(dx, dy);
    viewport()->scroll(dx, dy);
}

// --- painting

void ListView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    int const last = std::min(rowAtHeight(event->rect().bottom()), rows_->rowCount() - 1);
    for (int row = rowAtHeight(event->rect().top()); row <= last; ++row) {
        drawRow(painter, row);
    }
}

/// A number too wide for its column runs on into the free space of the next one, so that nothing is cut.
void ListView::drawRow(QPainter& painter, int row) const
{
    bool const isSelected = selectionModel()->isRowSelected(row);
    if (isSelected) {
        painter.fillRect(rowRect(row, row), palette().brush(QPalette::Highlight));
    }
    painter.setPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    for (int column = 0; column < rows_->columnCount(); ++column) {
        QModelIndex const index = rows_->index(row, column);
        int const alignment = index.data(Qt::TextAlignmentRole).toInt();
        bool const isRight = (alignment & Qt::AlignRight) != 0;
        painter.drawText(visualRect(index).adjusted(1, 0, isRight ? -4 : 0, 0),
                         alignment | Qt::TextDontClip | Qt::TextSingleLine, index.data().toString());
    }
}

// --- keys and selection

void ListView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelectedRows();
        return;
    }
    bool const isFirstDown = event->key() == Qt::Key_Down && !selectionModel()->hasSelection();
    if (isFirstDown) {
        QModelIndex const first = moveCursor(MoveHome, Qt::NoModifier);
        selectionModel()->setCurrentIndex(first, selectionCommand(first));
    } else {
        QTableView::keyPressEvent(event);
    }
    if (event->isAccepted() && currentIndex().isValid()) {
        showCurrentRow();
    }
}

/// On a small screen the list itself may be partly out of sight, and the row that a key leads to with it.
void ListView::showCurrentRow()
{
    QWidget* ancestor = parentWidget();
    while (ancestor != nullptr && qobject_cast<QScrollArea*>(ancestor) == nullptr) {
        ancestor = ancestor->parentWidget();
    }
    if (auto* const area = qobject_cast<QScrollArea*>(ancestor)) {
        QRect const row = rowRect(currentIndex().row(), currentIndex().row());
        QPoint const center = viewport()->mapTo(area->widget(), row.center());
        area->ensureVisible(center.x(), center.y(), row.width() / 2, kRowHeight);
    }
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/)
{
    int const last = rows_->rowCount() - 1;
    int const page = std::max(1, viewport()->height() / kRowHeight);
    int row = currentIndex().isValid() ? currentIndex().row() : -1;
    switch (action) {
    case MoveDown:
    case MoveNext:
        ++row;
        break;
    case MoveUp:
    case MovePrevious:
        --row;
        break;
    case MovePageDown:
        row += page;
        break;
    case MovePageUp:
        row -= page;
        break;
    case MoveHome:
        row = 0;
        break;
    case MoveEnd:
        row = last;
        break;
    default:
        break;
    }
    QModelIndex const found = rows_->index(std::clamp(row, 0, std::max(last, 0)), 0);
    if (found ==
        currentIndex()) { // as the first row is once the list has the focus, wherever it is scrolled to
        scrollTo(found);
    }
    return found;
}

void ListView::setSelection(QRect const& rect, QItemSelectionModel::SelectionFlags command)
{
    int const last = rows_->rowCount() - 1;
    int const top = std::max(rowAtHeight(rect.top()), 0);
    int const bottom = std::min(rowAtHeight(rect.bottom()), last);
    QItemSelection selection;
    if (top <= bottom) {
        selection.select(rows_->index(top, 0), rows_->index(bottom, 0));
    }
    selectionModel()->select(selection, command);
}

QRegion ListView::visualRegionForSelection(QItemSelection const& selection) const
{
    QRegion region;
    for (QItemSelectionRange const& range : selection) {
        region += rowRect(range.top(), range.bottom()) & viewport()->rect();
    }
    return region;
}

/// In the form that a spreadsheet reads: cells separated by tabs, rows by line ends.
void ListView::copySelectedRows() const
{
    QModelIndexList selected = selectionModel()->selectedRows();
    std::ranges::sort(selected, {}, &QModelIndex::row);
    QStringList lines;
    for (QModelIndex const& row : selected) {
        QStringList cells;
        for (int column = 0; column < rows_->columnCount(); ++column) {
            cells += row.siblingAtColumn(column).data().toString();
        }
        lines += cells.join(u'\t');
    }
    if (!lines.isEmpty()) {
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
    }
}
