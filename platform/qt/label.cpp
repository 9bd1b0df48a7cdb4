#include "platform/label.h"

#include "platform/qt/text.h"

#include <QLabel>

Label::Label(QWidget* parent, std::string const& name) : Control(new QLabel(parent), name) {}

void Label::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, 0);
    auto& label = static_cast<QLabel&>(Widget());
    label.setTextFormat(Qt::PlainText);
    label.setText(ToQt(properties.caption).replace(u'\r', u'\n'));
}

void Label::Multiline()
{
    static_cast<QLabel&>(Widget()).setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}
