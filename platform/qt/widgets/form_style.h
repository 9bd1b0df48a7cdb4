#pragma once

class QStyle;
class QWidget;

/// The one style that draws the controls of windows with colours of their own: a desktop's style may recolour or
/// hide them. It draws the frame around the focused control too.
QStyle& FormStyle();

/// Draws a control with this style, if its parent is drawn so. The toolkit does not pass a style on to children.
void InheritFormStyle(QWidget& control);
