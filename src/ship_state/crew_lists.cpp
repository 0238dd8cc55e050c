#include "ship_state/crew_lists.h"

#include <algorithm>

namespace torvane {

QStringList entriesOf(const ListRow& list, Language language)
{
    QStringList entries;
    for (const ListWord& word : list.words) {
        entries.append(QString::fromUtf8(language == Language::German ? word.germanEntry : word.stored));
    }
    return entries;
}

/// The row whose column holds a text, and what stands in another column of it; else the text itself.
static QString translated(const ListRow& list, const QString& text, const char* ListWord::*from,
                          const char* ListWord::*to)
{
    const auto found = std::ranges::find_if(
        list.words, [&](const ListWord& word) { return text == QString::fromUtf8(word.*from); });
    return found == list.words.end() ? text : QString::fromUtf8((*found).*to);
}

QString shownWord(const ListRow& list, const QString& stored, Language language)
{
    return language == Language::German ? translated(list, stored, &ListWord::stored, &ListWord::germanWord)
                                        : stored;
}

QString storedWord(const ListRow& list, const QString& shown, Language language)
{
    const QString word = shown.trimmed();
    return language == Language::German ? translated(list, word, &ListWord::germanWord, &ListWord::stored)
                                        : word;
}

} // namespace torvane
