#pragma once

class QStyle;
class QWidget;

/// The style for all windows with their own colours, since a desktop's style may recolour or hide controls. It also
/// draws the frame around the focused control.
QStyle& FormStyle();

/// Gives a control this style if its parent has it. Qt does not pass styles on to children.
void InheritFormStyle(QWidget& control);
