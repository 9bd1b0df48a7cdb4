#include "platform/control.h"

#include "platform/qt/text.h"
#include "platform/qt/widgets/fitted_font.h"
#include "platform/qt/widgets/form_style.h"

#include <QApplication>
#include <QGroupBox>

Control::Control(QWidget* widget, std::string const& name) : widget_(widget)
{
    widget->setObjectName(ToQt(name));
    InheritFormStyle(*widget);
}

Control::~Control() = default;

void Control::Tooltip(std::string_view text)
{
    widget_->setToolTip(ToQt(text));
}

void Control::Apply(ControlProperties const& properties)
{
    QPoint topLeft(properties.left, properties.top);
    for (QWidget* parent = widget_->parentWidget(); qobject_cast<QGroupBox*>(parent) != nullptr;
         parent = parent->parentWidget()) {
        topLeft -= parent->pos();
    }
    widget_->setGeometry(QRect(topLeft, QSize(properties.width, properties.height)));
    widget_->setEnabled(properties.style.enabled);
    widget_->setVisible(properties.style.visible);
    widget_->setAccessibleName(ToQt(properties.caption).simplified());
    tabIndex_ = properties.tabIndex;
}

void Control::ApplyFont(ControlProperties const& properties, int margins)
{
    QFont font = QApplication::font();
    if (properties.style.textSize > 0) {
        font.setPixelSize(properties.style.textSize);
    }
    font.setBold(properties.style.bold);
    if (properties.style.bold || properties.style.textSize == 0) {
        QString const caption = ToQt(properties.caption);
        QSize const room(properties.width - margins, properties.height);
        font = SmallerFont(CondensedFont(font, caption, room.width()), caption, room);
    }
    widget_->setFont(font);
}

void _SetProperties(Control& control, ControlProperties const& properties)
{
    control.Apply(properties);
}
