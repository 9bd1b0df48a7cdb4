#pragma once

#include <QString>

class QWidget;

/// Makes a screen reader say a text. The window and its focus stay as they are.
void SpeakIn(QWidget& window, QString const& text);
