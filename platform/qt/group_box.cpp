#include "platform/group_box.h"

#include "platform/qt/text.h"

#include <QGroupBox>

GroupBox::GroupBox(QWidget* parent, std::string const& name) : Control(new QGroupBox(parent), name) {}

void GroupBox::Apply(ControlProperties const& properties)
{
    constexpr int kMargins = 8; // pixels, left and right of the caption
    Control::Apply(properties);
    ApplyFont(properties, kMargins);
    static_cast<QGroupBox&>(Widget()).setTitle(ToQt(properties.caption));
}
