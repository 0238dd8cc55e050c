#include "scenario_file/recover_scenario.h"

#include "platform/bilingual.h"
#include "platform/code_page.h"
#include "platform/profile.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "scenario_file/load_scenario.h"
#include "scenario_file/save_scenario.h"
#include "scenario_file/scenario_format.h"
#include "store/profile_keys.h"
#include "store/target_area.h"
#include "store/working_profile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace torvane {

namespace {

constexpr Bilingual recoveredWord{"recovered", "wiederhergestellt"};
constexpr Bilingual nameless{"Scenario", "Szenario"};

// A profile set aside.
constexpr QLatin1StringView asideStart{"Unrecovered "};
constexpr QLatin1StringView asideEnd{".bmm"};

// With the word and the time behind it a name stays well below the 255 bytes that file systems take.
constexpr qsizetype longestTitle = 150; // bytes

QString timeText(const QDateTime& now)
{
    return now.toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
}

QByteArrayView read(const Profile& profile, QStringView section, QStringView key)
{
    return GetIniKey(profile, toCodePage(section), toCodePage(key));
}

bool isThere(const Profile& profile, QStringView section, QStringView key)
{
    return read(profile, section, key) != invalidValue;
}

int divisionsIn(const Profile& profile)
{
    int count = 0;
    for (int n = 0; n < divisionSections; ++n) {
        count += isThere(profile, divisionSection(n), u"DIVISIONNAME") ? 1 : 0;
    }
    return count;
}

bool holdsScenario(const Profile& profile)
{
    return divisionsIn(profile) > 0 ||
           std::any_of(scenarioDataKeys.begin(), scenarioDataKeys.end(),
                       [&profile](QStringView key) { return isThere(profile, scenarioDataSection, key); });
}

/// The title as the start of a file's name, on whatever system the file ends up.
QString nameOf(const Profile& profile, Language language)
{
    const QByteArrayView title = read(profile, scenarioDataSection, u"TITLE");
    QString name = title == invalidValue ? QString() : fromCodePage(title).trimmed();
    const auto isForbidden = [](QChar c) { return c < u' ' || QStringView(u"\\/:?*\"<>|").contains(c); };
    std::replace_if(name.begin(), name.end(), isForbidden, u'-');
    while (name.startsWith(u'.')) { // such a file would be hidden
        name.remove(0, 1);
    }
    while (QFile::encodeName(name).size() > longestTitle) {
        name.chop(1);
    }
    name = name.trimmed();
    return name.isEmpty() ? nameless.in(language) : name;
}

bool isTaken(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

/// The path with a number before its ending if there is something of that name.
QString freePath(const QString& start, const QString& end)
{
    QString path = start + end;
    for (int number = 2; isTaken(path); ++number) {
        path = start + u' ' + QString::number(number) + end;
    }
    return path;
}

/// The area that a save by the old run would have written.
TargetArea targetAreaOf(const Profile& profile)
{
    TargetArea target;
    if (const auto remembered = rememberedTargetArea(profile)) {
        return *remembered;
    }
    try {
        readTargetArea(profile, target);
    } catch (const RuntimeError&) {
        return {}; // no map could have shown it
    }
    return target;
}

/// What the overview's label of the first side showed: the roles may be swapped.
QString shownForceA(const Profile& profile, Language language)
{
    const bool swapped = read(profile, scenarioDataSection, u"BLUE_FORCE_TYPE") == "1";
    return (swapped ? Bilingual{"Force B", "Streitkraft B"} : Bilingual{"Force A", "Streitkraft A"})
        .in(language);
}

} // namespace

std::optional<QString> recoverScenario(const QString& profilePath, const QString& scenarioDir,
                                       Language language, const QDateTime& now)
{
    if (!isTaken(profilePath)) {
        return std::nullopt;
    }
    Profile profile = Profile::parse(readWholeFile(profilePath));
    if (!holdsScenario(profile)) {
        return std::nullopt;
    }
    if (!isThere(profile, scenarioInfoSection, divisionCountKey)) {
        profile.setValue(toCodePage(scenarioInfoSection), toCodePage(divisionCountKey),
                         QByteArray::number(divisionsIn(profile)));
    }
    const QByteArray bytes = scenarioBytes(profile, targetAreaOf(profile), shownForceA(profile, language));
    QDir().mkpath(scenarioDir);
    const QString name =
        nameOf(profile, language) + QStringLiteral(" (%1 %2)").arg(recoveredWord.in(language), timeText(now));
    const QString path = freePath(QDir(scenarioDir).filePath(name), scenarioFileSuffix);
    writeWholeFile(path, bytes);
    return path;
}

QString setProfileAside(const QString& profilePath, const QDateTime& now)
{
    const QString path =
        freePath(QFileInfo(profilePath).dir().filePath(asideStart + timeText(now)), asideEnd);
    renameFile(profilePath, path);
    return path;
}

QStringList profilesSetAside(const QString& workDir)
{
    QStringList paths;
    const QDir folder(workDir);
    for (const QString& name : folder.entryList({asideStart + u'*' + asideEnd}, QDir::Files, QDir::Name)) {
        paths.append(folder.filePath(name));
    }
    return paths;
}

} // namespace torvane
