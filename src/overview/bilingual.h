#pragma once

#include "platform/language.h"

#include <QString>

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

} // namespace torvane
