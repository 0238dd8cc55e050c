#pragma once

#include "platform/runtime_error.h"
#include "ship_selection/ship_record.h"
#include "support/catalogue_file.h"
#include "support/expect_error.h"
#include "support/printers.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <utility>

namespace torvane::testing {

/// A work folder with a catalogue, and what writes ship records into it.
class ShipRecordFixture : public ::testing::Test
{
protected:
    using Lines = QList<std::pair<QString, QString>>;

    ShipRecordFixture()
        : profile(store, folder()),
          files(store, folder()),
          catalogue(m_controls),
          records(store, profile, files, catalogue)
    {
        m_controls.bind(folder());
    }

    QString folder() const { return m_folder.path(); }
    QString catalogueFile() const { return m_folder.filePath("ShipDatabase.mdb"); }

    /// One ship whose class fields hold their own names, so that a record tells where a value came from.
    void makeTellingCatalogue(const QString& name = "Exeter") const
    {
        CatalogueFile file(catalogueFile());
        file.addShip(name, "the short name", "the type", "the class", "the navy");
        file.run("UPDATE ShipDataB SET HitPts = 'no', FloatPts = 'no', \"Torps?\" = 'no'");
        QList<std::pair<QString, QString>> fields;
        for (const char* field : {"e", "f", "g", "h", "i", "j", "k", "l", "m",  "o",      "p",
                                  "q", "r", "t", "u", "v", "x", "y", "z", "aa", "length", "width"}) {
            fields.emplaceBack(field, QStringLiteral("class ") + field);
        }
        file.addClass("the class", fields);
    }

    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList sectionNames(const QString& path) const
    {
        QStringList names;
        for (const QByteArray& line : bytesOf(path).split('\n')) {
            if (line.startsWith('[')) {
                names.append(QString::fromLatin1(line.trimmed()));
            }
        }
        return names;
    }

    /// The lines of a section as the file holds them.
    Lines linesOf(const QString& path, const QString& section) const
    {
        Lines lines;
        bool inside = false;
        for (const QByteArray& bytes : bytesOf(path).split('\n')) {
            const QString line = QString::fromLatin1(bytes).remove('\r');
            if (line.startsWith('[')) {
                inside = line == '[' + section + ']';
            } else if (inside && !line.isEmpty()) {
                lines.emplaceBack(line.section('=', 0, 0), line.section('=', 1));
            }
        }
        return lines;
    }

    QStringList keysOf(const Lines& lines) const
    {
        QStringList keys;
        for (const auto& line : lines) {
            keys.append(line.first);
        }
        return keys;
    }

private:
    QTemporaryDir m_folder;
    DataControls m_controls;

protected:
    ProfileStore store;
    WorkingProfile profile;
    ScratchFiles files;
    ShipCatalogue catalogue;
    ShipRecords records;
};

} // namespace torvane::testing
