#pragma once

#include <QFont>

/// The font, condensed as far as the text needs to fit into this width in pixels, but to 70 % at most.
QFont FittedFont(QFont font, QString const& text, int width);
