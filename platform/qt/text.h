#pragma once

#include <QString>

#include <string>
#include <string_view>

// Texts are UTF-8 outside this folder.

inline QString ToQt(std::string_view text)
{
    return QString::fromUtf8(text);
}

inline std::string FromQt(QString const& text)
{
    return text.toStdString();
}
