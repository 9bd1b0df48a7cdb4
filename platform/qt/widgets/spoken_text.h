#pragma once

#include <QString>

class QWidget;

/// Makes a screen reader say a text, without a change to the window or its focus.
void SpeakIn(QWidget& window, QString const& text);
