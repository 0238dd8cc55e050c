#pragma once

#include <QString>

#include <algorithm>

namespace torvane {

/// A text in capitals, letter by letter: "ß" has none and stays, so that no two names become one.
inline QString inCapitals(QString text)
{
    std::transform(text.cbegin(), text.cend(), text.begin(), [](QChar c) { return c.toUpper(); });
    return text;
}

} // namespace torvane
