#pragma once

#include "scenario_file/load_scenario.h"
#include "scenario_file/save_scenario.h"
#include "scenario_file/stored_profile.h"

#include <QFileInfo>

namespace torvane::testing {

/// Keeps what a load does to the menus, a line a call.
class MenuLog : public ForceMenus
{
public:
    void showDivision(Side side, int number) override
    {
        calls << QStringLiteral("show ") + (side == Side::Blue ? u'A' : u'B') + QString::number(number);
    }
    void enableForces() override { calls << QStringLiteral("enable"); }
    void addRepositionMenuEntry(const QString& name, const QString& side) override
    {
        calls << QStringLiteral("add %1|%2").arg(name, side);
    }

    QStringList calls;
};

/// A store into which scenario files are loaded.
class LoadedStore : public StoredProfile
{
protected:
    /// The whole load, from a file that holds these bytes.
    void load(const QByteArray& bytes)
    {
        writeScratchFile(scenario("loaded.scn"), bytes);
        loadFile(scenario("loaded.scn"));
    }
    void loadFile(const QString& path)
    {
        const ProfileStore::Batch batch(profiles);
        const Profile file = readScenario(path, profile);
        files.killFiles();
        menus.calls.clear();
        rebuildStore(file, profile, files, target, menus);
    }
    QByteArray saved(QStringView label = u"Force A") { return scenarioBytes(profile, target, label); }

    QString value(const char* section, const char* key) const
    {
        return profile.GetIniKey(QString::fromLatin1(section), QString::fromLatin1(key));
    }
    QByteArray profileBytes() const { return readWholeFile(profile.path()); }
    QStringList divData(Side side, int number) const { return files.read(files.divDataFile(side, number)); }
    QStringList division(Side side, int number) const { return files.read(files.divisionFile(side, number)); }
    QStringList shipTrack() const { return files.read(files.shipTrack()); }
    QString workFolder() const { return QFileInfo(profile.path()).path(); }
    QStringList workNames() const
    {
        return QDir(workFolder())
            .entryList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    ScratchFiles files{profiles, workFolder()};
    TargetArea target;
    MenuLog menus;
};

/// A file's section.
inline QByteArray section(const QByteArray& name, const QByteArrayList& lines)
{
    return '[' + name + "]\r\n" + lines.join("\r\n") + "\r\n";
}
inline QByteArray divisionOf(int n, const char* side, const QByteArrayList& more = {})
{
    const QByteArray number = QByteArray::number(n);
    return section("DIVISION" + number,
                   QByteArrayList{"DIVISIONNAME=Division " + number, QByteArray("SIDE=") + side} + more);
}
inline QByteArray shipOf(int n, int m, const QByteArrayList& lines = {"NAME=Cossack"})
{
    return section("DIVISION" + QByteArray::number(n) + "SHIP" + QByteArray::number(m), lines);
}

} // namespace torvane::testing
