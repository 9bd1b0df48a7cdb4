#pragma once

#include <QFont>
#include <QSize>

/// The font, condensed as far as the text needs to fit into this width in pixels, but to 70 % at most.
QFont CondensedFont(QFont font, QString const& text, int width);

/// The font, made smaller as far as the text needs to fit into this room in pixels.
QFont SmallerFont(QFont font, QString const& text, QSize room);
