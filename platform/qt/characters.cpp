#include "platform/characters.h"

#include "platform/qt/text.h"

std::u32string Characters(std::string_view text)
{
    return ToQt(text).toStdU32String();
}

std::optional<int> DigitValue(char32_t character)
{
    bool const isDigit = QChar::category(character) == QChar::Number_DecimalDigit;
    return isDigit ? std::optional(QChar::digitValue(character)) : std::nullopt;
}

bool IsBlank(char32_t character)
{
    return QChar::category(character) == QChar::Separator_Space;
}
