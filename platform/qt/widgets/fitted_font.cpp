#include "platform/qt/widgets/fitted_font.h"

#include <QFontMetrics>

QFont FittedFont(QFont font, QString const& text, int width)
{
    constexpr int kMinStretch = 70; // per cent of the font's width; narrower can't be read
    font.setStretch(QFont::Unstretched);
    while (QFontMetrics(font).horizontalAdvance(text) >= width && font.stretch() > kMinStretch) {
        font.setStretch(font.stretch() - 1);
    }
    return font;
}
