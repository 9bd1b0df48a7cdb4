#include "platform/qt/widgets/form_palette.h"

#include <QApplication>

QPalette FormPalette(QColor const& background)
{
    QColor const grey(128, 128, 128);
    QPalette palette(QColor(239, 239, 239), background);
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, grey);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(20, 90, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QApplication::palette().color(QPalette::ToolTipBase));
    palette.setColor(QPalette::ToolTipText, QApplication::palette().color(QPalette::ToolTipText));
    return palette;
}

QPalette FieldPalette(QPalette palette, QColor const& background)
{
    palette.setColor(QPalette::Base, background);
    return palette;
}
