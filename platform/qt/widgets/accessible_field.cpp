#include "platform/qt/widgets/accessible_field.h"

#include "platform/qt/widgets/tracked_line_edit.h"

#include <QAccessibleWidget>

namespace {

/// What assistive programs see of a field. The toolkit's own interface adds labels, which a screen reader says in
/// place of the field's name, and states text attributes for no character, which makes it drop the last digit.
/// Edits change the text like any other edit from outside; the field decides what becomes of them.
class AccessibleField final : public QAccessibleWidget,
                              public QAccessibleTextInterface,
                              public QAccessibleEditableTextInterface {
public:
    explicit AccessibleField(TrackedLineEdit& field)
        : QAccessibleWidget(&field, QAccessible::EditableText), field_(field)
    {
    }

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface*>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface*>(this);
        default:
            return QAccessibleWidget::interface_cast(type);
        }
    }

    /// The field's name says all that a label would.
    [[nodiscard]] QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override
    {
        return QAccessibleWidget::relations(match & ~QAccessible::Relation(QAccessible::Label));
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.readOnly = field_.isReadOnly();
        state.selectableText = true;
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? field_.text() : QAccessibleWidget::text(kind);
    }
    void setText(QAccessible::Text kind, QString const& text) override
    {
        if (kind == QAccessible::Value) {
            field_.setText(text);
        }
    }

    [[nodiscard]] QString text(int start, int end) const override
    {
        return field_.text().mid(start, qMax(0, end - start));
    }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(field_.text().size()); }
    /// From the text's end on the toolkit would look for the end of a word or a sentence forever.
    [[nodiscard]] QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                       int* end) const override
    {
        bool const isAtEnd =
            type != QAccessible::CharBoundary && (offset == -1 || offset == characterCount());
        return QAccessibleTextInterface::textAtOffset(isAtEnd ? characterCount() - 1 : offset, type, start,
                                                      end);
    }
    [[nodiscard]] QString attributes(int /*offset*/, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void insertText(int offset, QString const& text) override
    {
        field_.setText(field_.text().insert(offset, text));
    }
    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void replaceText(int start, int end, QString const& text) override
    {
        field_.setText(field_.text().replace(start, qMax(0, end - start), text));
    }

    [[nodiscard]] int cursorPosition() const override { return field_.cursorPosition(); }
    void setCursorPosition(int offset) override { field_.setCursorPosition(offset); }
    void scrollToSubstring(int start, int end) override
    {
        field_.setCursorPosition(end);
        field_.setCursorPosition(start);
    }

    [[nodiscard]] int selectionCount() const override { return field_.hasSelectedText() ? 1 : 0; }
    void selection(int index, int* start, int* end) const override
    {
        bool const isSelection = index == 0 && field_.hasSelectedText();
        *start = isSelection ? field_.selectionStart() : 0;
        *end = isSelection ? field_.selectionEnd() : 0;
    }
    void setSelection(int index, int start, int end) override
    {
        if (index == 0) {
            field_.setSelection(start, end - start);
        }
    }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int /*index*/) override { field_.deselect(); }

    [[nodiscard]] QRect characterRect(int offset) const override
    {
        QString const shown = field_.text();
        if (offset < 0 || offset >= shown.size()) {
            return {};
        }
        QFontMetrics const metrics = field_.fontMetrics();
        // The cursor is drawn in the middle of this; the toolkit says where no other offset is.
        QRect const cursor = field_.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        int const left = cursor.x() + cursor.width() / 2 + metrics.horizontalAdvance(shown, offset) -
                         metrics.horizontalAdvance(shown, cursorPosition());
        return {field_.mapToGlobal(QPoint(left, cursor.y())),
                QSize(metrics.horizontalAdvance(shown.at(offset)), metrics.height())};
    }
    [[nodiscard]] int offsetAtPoint(QPoint const& point) const override
    {
        return field_.cursorPositionAt(field_.mapFromGlobal(point));
    }

private:
    TrackedLineEdit& field_;
};

} // namespace

/// The toolkit may ask for a field that is still under construction, and keeps what it gets.
QAccessibleInterface* MakeAccessibleField(QString const& /*className*/, QObject* object)
{
    auto* const field = dynamic_cast<TrackedLineEdit*>(object);
    return field != nullptr ? new AccessibleField(*field) : nullptr;
}
