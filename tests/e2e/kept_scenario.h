#pragma once

#include "e2e/desktop.h"
#include "platform/language.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

#include <gmock/gmock.h>

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

/// A folder beside the test's program for what people look at afterwards.
inline QDir outputFolder(const char* name)
{
    const QDir folder(QStringLiteral(TORVANE_OUTPUT_DIR "/") + QLatin1StringView(name));
    folder.mkpath(QStringLiteral("."));
    return folder;
}

/// Keeps what the window in front shows, in the folder `pictures`.
inline void keepPicture(const Desktop& desktop, const QString& name)
{
    EXPECT_TRUE(
        desktop.activePicture().save(outputFolder("pictures").filePath(name + QStringLiteral(".png"))));
}

/// Expects a saved scenario to be the kept one, byte for byte. One that isn't is put beside the test's
/// program, in the folder `saved`, for a comparison.
inline void expectKept(const QString& saved, const char* road, Language language)
{
    const QString kept = keptScenario(road, language);
    EXPECT_EQ(linesOf(saved), linesOf(kept));
    EXPECT_TRUE(bytesOf(saved) == bytesOf(kept));
    if (::testing::Test::HasFailure()) {
        const QString copy = outputFolder("saved").filePath(QString(kept).section(QLatin1Char('/'), -1));
        QFile::remove(copy);
        QFile::copy(saved, copy);
    }
}

} // namespace torvane::testing
