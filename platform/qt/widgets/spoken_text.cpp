#include "platform/qt/widgets/spoken_text.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QPointer>
#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void SpeakIn(QWidget& window, QString const& text)
{
    QAccessibleAnnouncementEvent event(&window, text);
    QAccessible::updateAccessibility(&event);
}

#else

namespace {

/// A notification that only assistive programs see. A screen reader speaks it when it appears.
class Notification final : public QAccessibleObject {
public:
    using QAccessibleObject::QAccessibleObject;

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? object()->objectName() : QString();
    }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(object()->parent());
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(QAccessibleInterface const* /*child*/) const override { return -1; }
};

} // namespace

/// A screen reader asks for the text a moment later, so it is kept until the next one.
void SpeakIn(QWidget& window, QString const& text)
{
    static QPointer<QObject> spoken;
    delete spoken;
    spoken = new QObject(&window);
    spoken->setObjectName(text);
    QAccessible::registerAccessibleInterface(new Notification(spoken));
    QAccessibleEvent event(spoken, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

#endif
