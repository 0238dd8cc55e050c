#pragma once

#include "support/raw_database.h"

#include <QString>
#include <QStringList>

#include <utility>

namespace torvane::testing {

/// A small ship catalogue, made as another program would make it.
class CatalogueFile
{
public:
    /// Makes the file with its four tables, all empty.
    explicit CatalogueFile(const QString& path) : m_database(path)
    {
        m_database.run("PRAGMA synchronous = OFF"); // a test's file need not outlive a power cut
        m_database.run("CREATE TABLE gunTable (Name TEXT)");
        m_database.run("CREATE TABLE GunsRang (Class TEXT, Range TEXT)");
        m_database.run("CREATE TABLE ShipDataB (Name TEXT, Type TEXT, Class TEXT, Navy TEXT, HitPts TEXT, "
                       "FloatPts TEXT, \"Torps?\" TEXT, ShortName TEXT)");
        m_database.run(
            "CREATE TABLE ShipDaClass (b, e, f, g, h, i, j, k, l, m, o, p, q, r, t, u, v, x, y, z, "
            "aa, length, width, TurA, TurB, TurC, TurD, TurE, TurG, TurH, TurI, TurJ, TurL, TurM, TurN, "
            "TurO, TurQ, TurR, TurT, TurU, TurX, TurY, TurZ)");
    }

    void addShip(const QString& name, const QString& shortName, const QString& type, const QString& shipClass,
                 const QString& navy)
    {
        run("INSERT INTO ShipDataB (Name, ShortName, Type, Class, Navy) VALUES (%1)",
            {name, shortName, type, shipClass, navy});
    }

    /// Adds a class; fields that aren't given are NULL.
    void addClass(const QString& name, const QList<std::pair<QString, QString>>& fields = {})
    {
        QStringList names{"b"};
        QStringList values{name};
        for (const auto& [field, value] : fields) {
            names.append(field);
            values.append(value);
        }
        run("INSERT INTO ShipDaClass (" + names.join(", ") + ") VALUES (%1)", values);
    }

    void addGunRange(const QString& shipClass, const QString& range)
    {
        run("INSERT INTO GunsRang (Class, Range) VALUES (%1)", {shipClass, range});
    }

    QVariantList run(const QString& statement) { return m_database.run(statement); }

private:
    void run(const QString& statement, QStringList values)
    {
        for (QString& value : values) {
            value = '\'' + value.replace("'", "''") + '\'';
        }
        m_database.run(statement.arg(values.join(", ")));
    }

    RawDatabase m_database;
};

} // namespace torvane::testing
