#include "platform/listbox.h"

#include "platform/qt/controls.h"
#include "platform/qt/list_view.h"
#include "platform/qt/text.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <limits>

namespace {

constexpr int kRowHeight = 16;

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

int ToRow(std::int64_t row)
{
    return row < 0 || row > std::numeric_limits<int>::max() ? -1 : static_cast<int>(row);
}

} // namespace

ListView::ListView(QWidget* parent) : QTableView(parent)
{
    setModel(&rows_);
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

void ListView::setColumnWidths(QString const& widths)
{
    QStringList const parts = widths.split(u',', Qt::SkipEmptyParts);
    for (int column = 0; column < rows_.columnCount(); ++column) {
        bool const stated = column < parts.size();
        horizontalHeader()->setSectionResizeMode(column, stated ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (stated) {
            setColumnWidth(column, parts[column].toInt());
        }
    }
}

Listbox::Listbox(QWidget* parent, std::string const& name) : Control(new ListView(parent), name)
{
    RowSelectionType(0);
}

void Listbox::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    Widget().setFont(ControlFont(properties, 0));
}

void Listbox::AddRow(std::string_view text)
{
    auto& view = static_cast<ListView&>(Widget());
    view.rows().append(ToQt(text));
    if (!view.isHidden()) {
        view.scrollToBottom();
    }
}

void Listbox::RemoveRow(std::int64_t row)
{
    auto& view = static_cast<ListView&>(Widget());
    view.rows().remove(ToRow(row));
    if (!view.isHidden()) {
        view.scrollToBottom();
    }
}

void Listbox::DeleteAllRows()
{
    static_cast<ListView&>(Widget()).rows().clear();
}

std::int64_t Listbox::ListCount() const
{
    return static_cast<ListView const&>(Widget()).rows().rowCount();
}

std::string Listbox::List(std::int64_t row) const
{
    return Cell(row, 0);
}

std::string Listbox::Cell(std::int64_t row, int column) const
{
    ListModel const& rows = static_cast<ListView const&>(Widget()).rows();
    return FromQt(rows.data(rows.index(ToRow(row), column), Qt::DisplayRole).toString());
}

void Listbox::Cell(std::int64_t row, int column, std::string_view text)
{
    static_cast<ListView&>(Widget()).rows().setText(ToRow(row), column, ToQt(text));
}

void Listbox::CellAlignment(std::int64_t row, int column, Alignment alignment)
{
    Qt::Alignment const side = alignment == Right ? Qt::AlignRight : Qt::AlignLeft;
    static_cast<ListView&>(Widget()).rows().setAlignment(ToRow(row), column, side);
}

int Listbox::ColumnCount() const
{
    return static_cast<ListView const&>(Widget()).rows().columnCount();
}

void Listbox::ColumnCount(int count)
{
    static_cast<ListView&>(Widget()).rows().setColumns(count);
}

void Listbox::ColumnWidths(std::string_view widths)
{
    static_cast<ListView&>(Widget()).setColumnWidths(ToQt(widths));
}

void Listbox::RowSelectionType(int type)
{
    static_cast<ListView&>(Widget()).setSelectionMode(type == 1 ? QAbstractItemView::ExtendedSelection
                                                                : QAbstractItemView::SingleSelection);
}
