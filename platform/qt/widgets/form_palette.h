#pragma once

#include <QPalette>

/// The colours of a form that has a background of its own, whatever the desktop's theme: dark texts, light
/// fields and lists.
QPalette FormPalette(QColor const& background);

/// The same colours with another background in fields and lists.
QPalette FieldPalette(QPalette palette, QColor const& background);
