#pragma once

#include <QString>

#include <string>
#include <string_view>

// Texts cross the layer's border as UTF-8.

inline QString ToQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(QString const& text)
{
    return text.toStdString();
}
