#include "platform/mnemonics.h"

namespace torvane {

QChar mnemonicOf(const QString& caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != QLatin1Char('&')) {
            continue;
        }
        if (caption[i + 1] != QLatin1Char('&')) {
            return caption[i + 1].toLower();
        }
        ++i; // a doubled sign is a sign
    }
    return {};
}

static qsizetype freeLetter(const QString& caption, const QString& taken, bool atWordStart)
{
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const bool start = i == 0 || !caption[i - 1].isLetterOrNumber();
        if (caption[i].isLetter() && (start || !atWordStart) && !taken.contains(caption[i].toLower())) {
            return i;
        }
    }
    return -1;
}

QString withMnemonic(const QString& caption, QString& taken)
{
    const QChar present = mnemonicOf(caption);
    if (!present.isNull()) {
        taken.append(present);
        return caption;
    }
    qsizetype place = freeLetter(caption, taken, true);
    if (place < 0) {
        place = freeLetter(caption, taken, false);
    }
    if (place < 0) {
        return caption;
    }
    taken.append(caption[place].toLower());
    QString marked = caption;
    return marked.insert(place, QLatin1Char('&'));
}

} // namespace torvane
