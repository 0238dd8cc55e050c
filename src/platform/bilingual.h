#pragma once

#include "platform/language.h"

#include <QString>

#include <array>

namespace torvane {

/// A text of the interface in both languages. UTF-8.
struct Bilingual
{
    const char* english;
    const char* german;

    QString in(Language language) const
    {
        return QString::fromUtf8(language == Language::German ? german : english);
    }
};

/// A text that is the same in both languages.
constexpr Bilingual inBoth(const char* text)
{
    return {text, text};
}

/// One row of a table of texts by an enumeration, whose values count from 0 in the order of the rows.
template <typename Key>
struct TextRow
{
    Key key;
    Bilingual text;
};

/// The text of a row.
template <typename Key, std::size_t Size>
QString textIn(const std::array<TextRow<Key>, Size>& table, Key key, Language language)
{
    return table.at(static_cast<std::size_t>(key)).text.in(language);
}

} // namespace torvane
