#pragma once

#include "platform/control.h"

#include <QFont>
#include <QPalette>

/// The font of a control; a bold caption that is too wide for its place is condensed to fit.
QFont ControlFont(ControlProperties const& properties, int margins);

/// The colours of a form that has a background of its own, whatever the desktop's theme: dark texts, light
/// fields and lists.
QPalette FormPalette(Color background);

/// The same colours with another background in fields and lists.
QPalette FieldPalette(QPalette palette, Color background);
