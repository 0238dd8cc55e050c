#pragma once

#include "divisions/division_records.h"
#include "ship_selection/ship_record.h"
#include "store/profile_keys.h"
#include "support/printers.h"
#include "support/raw_database.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

/// A store with a small catalogue: destroyers "Ship 1" to "Ship 20" of one class.
class RecordsFixture : public ::testing::Test
{
protected:
    RecordsFixture()
    {
        controls.bind(workDir);
        const RawDatabase database(workDir + shipDatabaseFile);
        database.run(QStringLiteral("CREATE TABLE ShipDataB (Name TEXT, Type TEXT, Class TEXT, Navy TEXT, "
                                    "HitPts TEXT, FloatPts TEXT, \"Torps?\" TEXT, ShortName TEXT)"));
        database.run(QStringLiteral(
            "CREATE TABLE ShipDaClass (b TEXT, e TEXT, f TEXT, g TEXT, h TEXT, i TEXT, j TEXT, "
            "k TEXT, l TEXT, m TEXT, o TEXT, p TEXT, q TEXT, r TEXT, t TEXT, u TEXT, v TEXT, "
            "x TEXT, y TEXT, z TEXT, aa TEXT, length TEXT, width TEXT)"));
        database.run(QStringLiteral("BEGIN"));
        for (int i = 1; i <= 20; ++i) {
            database.run(
                QStringLiteral("INSERT INTO ShipDataB VALUES ('Ship %1', 'DD', 'Small', 'RN', '40', '30', "
                               "'Yes', 'S%1')")
                    .arg(i));
        }
        database.run(QStringLiteral(
            "INSERT INTO ShipDaClass VALUES ('Small', '36', '40', '30', '1', '2', '3', '4', '5', "
            "'6', '7', '8', '9', '10', '11', '12', '13', '5', '5', '0', '0', '330', '33')"));
        database.run(QStringLiteral("COMMIT"));
    }

    /// The lines of a division: the ships of these numbers.
    static QStringList ships(std::initializer_list<int> numbers)
    {
        QStringList lines;
        for (const int number : numbers) {
            lines.append(QStringLiteral("DD Ship %1").arg(number));
        }
        return lines;
    }

    static DivisionFields fields(Side side, int number, const QString& formation = QStringLiteral("Column"))
    {
        return {.divisionLabel = QStringLiteral("Verband %1 ").arg(number),
                .sideLabel =
                    side == Side::Blue ? QStringLiteral("Force A (Blue)") : QStringLiteral("Force B (Red)"),
                .formation = formation,
                .heading = QStringLiteral(" 90 "),
                .spacing = QStringLiteral(" 1000"),
                .speed = QStringLiteral("24 "),
                .flagshipRow = {}};
    }

    /// Makes a division with ships as the dialog does: counted, listed, saved.
    void create(Side side, int number, const QStringList& lines)
    {
        records.countDivision(side, 1);
        files.write(files.divisionFile(side, number), lines);
        DivisionFields shown = fields(side, number);
        shown.flagshipRow = 0;
        records.saveToINI(shown, true);
        records.writeDivisionCount(QString());
    }

    QString key(const QString& section, const char* name) const
    {
        return profile.GetIniKey(section, QString::fromLatin1(name));
    }
    QString shipName(int division, int place) const { return key(shipSection(division, place), "NAME"); }

    QTemporaryDir folder;
    const QString workDir = folder.path() + QLatin1Char('/');
    ProfileStore store;
    WorkingProfile profile{store, workDir};
    ScratchFiles files{store, workDir};
    DataControls controls;
    ShipCatalogue catalogue{controls};
    ShipRecords shipRecords{store, profile, files, catalogue};
    DivisionRecords records{store, profile, files, shipRecords};
};

} // namespace torvane::testing
