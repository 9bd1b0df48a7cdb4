#pragma once

#include <QFont>
#include <QSize>

/// The font, condensed until the text fits into this width in pixels, but to no less than 70 %.
QFont CondensedFont(QFont font, QString const& text, int width);

/// The font, made smaller until the text fits into this size in pixels.
QFont SmallerFont(QFont font, QString const& text, QSize room);
