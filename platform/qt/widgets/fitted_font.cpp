#include "platform/qt/widgets/fitted_font.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace {

bool IsTooWide(QString const& text, QFont const& font, int width)
{
    return QFontMetrics(font).horizontalAdvance(text) >= width;
}

} // namespace

QFont CondensedFont(QFont font, QString const& text, int width)
{
    constexpr int kMinStretch = 70; // per cent of the font's width; narrower can't be read
    font.setStretch(QFont::Unstretched);
    while (font.stretch() > kMinStretch && IsTooWide(text, font, width)) {
        font.setStretch(font.stretch() - 1);
    }
    return font;
}

QFont SmallerFont(QFont font, QString const& text, QSize room)
{
    int size = QFontInfo(font).pixelSize();
    while (size > 1 && (IsTooWide(text, font, room.width()) || QFontMetrics(font).height() > room.height())) {
        font.setPixelSize(--size);
    }
    return font;
}
