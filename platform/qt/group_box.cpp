#include "platform/group_box.h"

#include "platform/qt/text.h"
#include "platform/qt/widgets/fitted_font.h"

#include <QGroupBox>

GroupBox::GroupBox(QWidget* parent, std::string const& name) : Control(new QGroupBox(parent), name) {}

void GroupBox::Apply(ControlProperties const& properties)
{
    constexpr int kMargins = 8;         // pixels, left and right of the title
    constexpr int kMaxTitleHeight = 21; // pixels; the first label in the box is below
    Control::Apply(properties);
    ApplyFont(properties, kMargins);
    auto& box = static_cast<QGroupBox&>(Widget());
    QString const title = ToQt(properties.caption);
    box.setFont(SmallerFont(box.font(), title, QSize(properties.width - kMargins, kMaxTitleHeight)));
    box.setTitle(title);
}
