#include "shell/lifecycle.h"

#include "store/side.h"

namespace torvane {

Paths pathsBelow(const QString& basePath)
{
    return {.basePath = basePath,
            .workDir = basePath + QStringLiteral("/ScenarioEditor/"),
            .scenarioDir = basePath + QStringLiteral("/Scenarios/")};
}

QString gameProgram(const QString& basePath, Language language)
{
    const QString name = language == Language::German ? QStringLiteral("/Torvane Deutsch.exe")
                                                      : QStringLiteral("/Torvane.exe");
    return basePath + name;
}

QStringList aboutLines(Language language, const QString& date)
{
    return {QString(),
            QStringLiteral("Torvane"),
            language == Language::German ? QStringLiteral("Szenario-Editor")
                                         : QStringLiteral("Scenario Editor"),
            versionText,
            QString(),
            QStringLiteral("Quillmark"),
            date,
            QString(),
            fileVersionText,
            QStringLiteral("3")};
}

QDate versionDate()
{
    return {1999, 8, 9};
}

QString repositionKeyFor(const QString& sideLabel, const QString& divisionLabel)
{
    return wordOf(sideOfLabel(sideLabel)) + QLatin1Char(' ') + divisionLabel.trimmed().right(1);
}

} // namespace torvane
