#include "platform/qt/widgets/list_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int kRowHeight = 16; // pixels

/// Draws a cell's text over its full width. A number too wide for its column runs on into the free space of the
/// next one, so that nothing is cut: each cell draws its own text and what runs in from the left.
class CellPainter final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override
    {
        bool const selected = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        if (selected) {
            painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
        }
        painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->setFont(option.font);
        painter->setClipRect(option.rect, Qt::IntersectClip);
        drawText(*painter, option.rect, index);
        if (index.column() > 0) {
            QModelIndex const left = index.siblingAtColumn(index.column() - 1);
            drawText(*painter, static_cast<QTableView const*>(option.widget)->visualRect(left), left);
        }
        painter->restore();
    }

private:
    static void drawText(QPainter& painter, QRect const& place, QModelIndex const& index)
    {
        int const alignment = index.data(Qt::TextAlignmentRole).toInt();
        bool const isRight = (alignment & Qt::AlignRight) != 0;
        painter.drawText(place.adjusted(1, 0, isRight ? -4 : 0, 0),
                         alignment | Qt::TextDontClip | Qt::TextSingleLine, index.data().toString());
    }
};

} // namespace

ListView::ListView(QWidget* parent) : QTableView(parent), rows_(new ListModel(this))
{
    setModel(rows_);
    setItemDelegate(new CellPainter(this));
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

/// The model is a child of the view: it must not go first.
ListView::~ListView() = default;

void ListView::setColumnWidths(QString const& widths)
{
    QStringList const parts = widths.split(u',', Qt::SkipEmptyParts);
    for (int column = 0; column < rows_->columnCount(); ++column) {
        bool const stated = column < parts.size();
        horizontalHeader()->setSectionResizeMode(column, stated ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (stated) {
            setColumnWidth(column, parts[column].toInt());
        }
    }
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelectedRows();
    } else {
        QTableView::keyPressEvent(event);
    }
}

/// As a spreadsheet takes it: cells are separated by tabs, rows by line ends.
void ListView::copySelectedRows() const
{
    QModelIndexList selected = selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
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
