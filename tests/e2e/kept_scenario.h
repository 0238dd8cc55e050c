#pragma once

#include "platform/language.h"

#include <QFile>
#include <QString>
#include <QStringList>

#include <string>

namespace torvane::testing {

inline std::string languageWord(Language language)
{
    return language == Language::German ? "German" : "English";
}

/// The file that a road with real input has to end in.
inline QString keptScenario(const char* road, Language language)
{
    return QStringLiteral(TORVANE_KEPT_DIR "/%1_%2.scn")
        .arg(QLatin1StringView(road), QString::fromStdString(languageWord(language)).toLower());
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Its lines, which tell a difference better than its bytes.
inline QStringList linesOf(const QString& path)
{
    return QString::fromLatin1(bytesOf(path)).split(QStringLiteral("\r\n"));
}

} // namespace torvane::testing
