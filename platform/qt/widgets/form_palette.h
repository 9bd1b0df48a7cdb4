#pragma once

#include <QPalette>

/// The colours of a form with its own background: dark text, light fields and lists, even under a dark desktop theme.
QPalette FormPalette(QColor const& background);

/// The same colours with another background for fields and lists.
QPalette FieldPalette(QPalette palette, QColor const& background);
