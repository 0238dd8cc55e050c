#include "faults/staged_game.h"

#include "faults/scripted_names.h"
#include "store/data_controls.h"
#include "store/working_tables.h"
#include "support/catalogue_file.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

namespace torvane::testing {

namespace {

const QString help = QStringLiteral("SE_README.HLP");
const QString otherCatalogue = QStringLiteral("other.mdb");

void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("can't write " + path.toStdString());
    }
}

void copy(const QString& from, const QString& to)
{
    QFile::remove(to);
    if (!QFile::copy(from, to)) {
        throw std::runtime_error("can't copy to " + to.toStdString());
    }
}

// Six ships of each navy.
void makeCatalogue(const QString& path, const QString& word)
{
    CatalogueFile catalogue(path);
    catalogue.run(QStringLiteral("BEGIN"));
    for (const char* navy : {"RN", "USN", "KM", "IJN"}) {
        for (int number = 1; number <= 6; ++number) {
            const QString name = QStringLiteral("%1 %2 %3").arg(word, QLatin1StringView(navy)).arg(number);
            catalogue.addShip(name, name, QStringLiteral("CL"), word, QLatin1StringView(navy));
        }
    }
    catalogue.addClass(word, {{QStringLiteral("e"), QStringLiteral("30")},
                              {QStringLiteral("f"), QStringLiteral("800")},
                              {QStringLiteral("length"), QStringLiteral("555")},
                              {QStringLiteral("TurA"), QStringLiteral("2")}});
    catalogue.addGunRange(word, QStringLiteral("25000"));
    catalogue.run(QStringLiteral("COMMIT"));
}

} // namespace

StagedGame::StagedGame()
{
    put(m_template.filePath(help), QByteArrayLiteral("help"));
    createWorkingTables(m_template.filePath(scenarioDataFile));
    makeCatalogue(m_template.filePath(shipDatabaseFile), QStringLiteral("Ship"));
    makeCatalogue(m_template.filePath(otherCatalogue), QStringLiteral("Other"));
}

QStringList StagedGame::workFiles()
{
    return {help, scenarioDataFile, shipDatabaseFile};
}

void StagedGame::repair(const QString& folder) const
{
    QDir(folder).mkpath(QStringLiteral("ScenarioEditor"));
    QDir(folder).mkpath(QStringLiteral("Scenarios"));
    for (const QString& name : workFiles()) {
        copy(m_template.filePath(name), folder + QStringLiteral("/ScenarioEditor/") + name);
    }
}

void StagedGame::stage(const QString& folder, bool withOldScenarios) const
{
    QDir(folder).removeRecursively();
    repair(folder);
    copy(m_template.filePath(otherCatalogue), folder + QStringLiteral(".other.mdb"));
    for (const char* name : scenarioNames) {
        QFile::remove(folder + QLatin1Char('.') + QLatin1StringView(expectedEnding(name)));
        if (withOldScenarios) {
            put(folder + QStringLiteral("/Scenarios/") + QLatin1StringView(name), oldBytes());
        }
    }
}

} // namespace torvane::testing
