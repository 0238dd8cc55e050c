#include "catalogue/write_database.h"
#include "catalogue_text.h"
#include "platform/runtime_error.h"
#include "program_run.h"
#include "support/failing_system.h"
#include "support/printers.h"
#include "support/raw_database.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane {
namespace {

using testing::CatalogueText;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::ProgramRun;
using testing::runMakeCatalogue;
using ::testing::StartsWith;

const QString usage = QStringLiteral("usage: make_catalogue");

class MakeCatalogue : public ::testing::Test
{
protected:
    QString folder() const { return m_folder.path(); }
    QString database() const { return m_folder.filePath("ShipDatabase.mdb"); }

    void put(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray bytesOf(const QString& path) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void putFiles(const CatalogueText& text) const
    {
        put("ships.csv", CatalogueText::bytes(text.ships));
        put("classes.csv", CatalogueText::bytes(text.classes));
        put("gun_ranges.csv", CatalogueText::bytes(text.ranges));
    }

    QVariantList ask(const QString& query) const { return testing::RawDatabase(database()).run(query); }

private:
    QTemporaryDir m_folder;
};

TEST_F(MakeCatalogue, WritesADatabaseOfFourTables)
{
    putFiles(CatalogueText());
    const ProgramRun run = runMakeCatalogue({folder(), database()});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(ask("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid"),
                ElementsAre("ShipDataB", "ShipDaClass", "GunsRang", "gunTable"));
}

TEST_F(MakeCatalogue, TheTablesHaveTheFieldsThatTheEditorReads)
{
    putFiles(CatalogueText());
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    EXPECT_THAT(ask("SELECT name FROM pragma_table_info('ShipDataB')"),
                ElementsAre("Name", "Type", "Class", "Navy", "HitPts", "FloatPts", "Torps?", "ShortName"));
    EXPECT_THAT(ask("SELECT name FROM pragma_table_info('ShipDaClass')"),
                ElementsAre("b", "e", "f", "g", "h", "i", "j", "k", "l", "m", "o", "p", "q", "r", "t", "u",
                            "v", "x", "y", "z", "aa", "length", "width", "TurA", "TurB", "TurC", "TurD",
                            "TurE", "TurG", "TurH", "TurI", "TurJ", "TurL", "TurM", "TurN", "TurO", "TurQ",
                            "TurR", "TurT", "TurU", "TurX", "TurY", "TurZ"));
    EXPECT_THAT(ask("SELECT name FROM pragma_table_info('GunsRang')"), ElementsAre("Class", "Range"));
    EXPECT_THAT(ask("SELECT name FROM pragma_table_info('gunTable')"),
                ElementsAre("Class", "Calibre", "Guns", "Shells"));
}

TEST_F(MakeCatalogue, RowsKeepTheOrderOfTheFiles)
{
    CatalogueText text;
    std::swap(text.ships.at(1), text.ships.at(1266));
    std::swap(text.classes.at(1), text.classes.at(2));
    std::swap(text.ranges.at(1), text.ranges.at(3));
    putFiles(text);
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    EXPECT_EQ(ask("SELECT Name FROM ShipDataB ORDER BY rowid LIMIT 1").value(0), "IJN245");
    EXPECT_EQ(ask("SELECT Name FROM ShipDataB ORDER BY rowid DESC LIMIT 1").value(0), "RN1");
    EXPECT_THAT(ask("SELECT b FROM ShipDaClass ORDER BY rowid"),
                ElementsAre("Oiler", "RN class", "USN class", "KM class", "IJN class"));
    EXPECT_THAT(ask("SELECT Class FROM GunsRang ORDER BY rowid"),
                ElementsAre("KM class", "USN class", "RN class", "IJN class"));
}

// A class in which no two fields are alike, so that no two can be exchanged. 1000 tons and 16 inches of belt:
// 200 hit points, 148 float points.
TEST_F(MakeCatalogue, EveryFieldOfAClassIsFilledFromItsOwnValue)
{
    CatalogueText text;
    const std::vector<std::pair<QString, QString>> values{{"standard_tons", "1000"},
                                                          {"belt_in", "16"},
                                                          {"speed_kn", "31"},
                                                          {"main_calibre_in", "10"},
                                                          {"shells_per_gun", "100"},
                                                          {"tur_a", "2"},
                                                          {"tur_b", "1"},
                                                          {"tur_y", "1"},
                                                          {"sec_calibre_in", "10"},
                                                          {"sec_fore", "1"},
                                                          {"sec_aft", "2"},
                                                          {"sec_port", "3"},
                                                          {"sec_starboard", "4"},
                                                          {"tubes_1", "4"},
                                                          {"tubes_2", "3"},
                                                          {"tubes_3", "2"},
                                                          {"tubes_4", "1"},
                                                          {"torpedoes_carried", "10"}};
    for (const auto& [column, value] : values) {
        CatalogueText::set(text.classes, 2, column, value);
    }
    putFiles(text);
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    const auto field = [&](const QString& name) {
        return ask(QStringLiteral("SELECT \"%1\" FROM ShipDaClass LIMIT 1").arg(name)).value(0).toString();
    };
    QStringList row;
    for (const char* name : {"b", "e", "f", "g", "h", "i", "j", "k", "l",  "m",      "o",    "p",
                             "q", "r", "t", "u", "v", "x", "y", "z", "aa", "length", "width"}) {
        row.append(field(name));
    }
    EXPECT_THAT(row, ElementsAre("RN class", "31", "200", "148", "105", "105", "90", "35", "35", "30", "1",
                                 "2", "3", "4", "525", "525", "450", "4", "3", "2", "1", "320.5", "33"));
}

TEST_F(MakeCatalogue, EachTurretFieldHoldsTheGunsOfItsColumn)
{
    const QString letters = QStringLiteral("ABCDEGHIJLMNOQRTUXYZ");
    for (const QChar letter : letters) {
        CatalogueText text;
        CatalogueText::set(text.classes, 2, "tur_a", "0");
        CatalogueText::set(text.classes, 2, "tur_y", "0");
        CatalogueText::set(text.classes, 2, QStringLiteral("tur_") + letter.toLower(), "3");
        putFiles(text);
        ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
        for (const QChar other : letters) {
            EXPECT_EQ(
                ask(QStringLiteral("SELECT Tur%1 FROM ShipDaClass LIMIT 1").arg(other)).value(0).toString(),
                other == letter ? "3" : "0")
                << qPrintable(QString(letter)) << qPrintable(QString(other));
        }
    }
}

TEST_F(MakeCatalogue, AShipCarriesThePointsAndTorpedoesOfHerClass)
{
    CatalogueText text;
    CatalogueText::set(text.ships, 425, "short_name", "Tanker");
    CatalogueText::set(text.classes, 3, "standard_tons", "8000");
    putFiles(text);
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    const QString all =
        "Name || '|' || Type || '|' || Class || '|' || Navy || '|' || HitPts || '|' || FloatPts || '|' "
        "|| \"Torps?\" || '|' || ShortName";
    const QString query = QStringLiteral("SELECT %1 FROM ShipDataB WHERE Name = '%2'");
    EXPECT_THAT(ask(query.arg(all, "RN424")), ElementsAre("RN424|DD|Oiler|RN|400|423|0|Tanker"));
    EXPECT_THAT(ask(query.arg(all, "KM198")), ElementsAre("KM198|DD|KM class|KM|125|114|8|KM198"));
}

TEST_F(MakeCatalogue, EveryValueIsText)
{
    putFiles(CatalogueText());
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    for (const char* table : {"ShipDataB", "ShipDaClass", "GunsRang", "gunTable"}) {
        const QVariantList names = ask(QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table));
        for (const QVariant& name : names) {
            EXPECT_THAT(
                ask(QStringLiteral("SELECT DISTINCT typeof(\"%1\") FROM %2").arg(name.toString(), table)),
                ElementsAre("text"))
                << table;
        }
    }
}

TEST_F(MakeCatalogue, ListsAllFaultsAndWritesNothing)
{
    CatalogueText text;
    CatalogueText::set(text.classes, 3, "speed_kn", "fast");
    CatalogueText::set(text.ships, 2, "class", "Phantom");
    CatalogueText::removeLine(text.ranges, 5);
    putFiles(text);
    const ProgramRun run = runMakeCatalogue({folder(), database()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(
        run.errors.split('\n'),
        ElementsAre("classes.csv:3: speed_kn \"fast\" is no number",
                    "classes.csv:6: the class \"IJN class\" has main guns but no row in gun_ranges.csv",
                    "ships.csv:2: the class \"Phantom\" has no row in classes.csv", ""));
    EXPECT_FALSE(QFile::exists(database()));
}

TEST_F(MakeCatalogue, LeavesAnOlderDatabaseAloneWhenThereIsAFault)
{
    CatalogueText text;
    CatalogueText::set(text.ships, 2, "name", "");
    putFiles(text);
    put("ShipDatabase.mdb", "older");
    EXPECT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 1);
    EXPECT_EQ(bytesOf(database()), "older");
}

TEST_F(MakeCatalogue, ReplacesAnOlderDatabase)
{
    putFiles(CatalogueText());
    put("ShipDatabase.mdb", "older");
    EXPECT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    EXPECT_THAT(bytesOf(database()).toStdString(), StartsWith("SQLite format 3"));
}

TEST_F(MakeCatalogue, LeavesNothingBesideTheDatabase)
{
    putFiles(CatalogueText());
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    EXPECT_THAT(QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
                ElementsAre("ShipDatabase.mdb", "classes.csv", "gun_ranges.csv", "ships.csv"));
}

TEST_F(MakeCatalogue, GivesTheSameBytesForTheSameFiles)
{
    putFiles(CatalogueText());
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    const QByteArray first = bytesOf(database());
    ASSERT_EQ(runMakeCatalogue({folder(), database()}).exitCode, 0);
    EXPECT_TRUE(bytesOf(database()) == first);
}

TEST_F(MakeCatalogue, NamesAFileThatIsMissing)
{
    putFiles(CatalogueText());
    ASSERT_TRUE(QFile::remove(folder() + "/classes.csv"));
    const ProgramRun run = runMakeCatalogue({folder(), database()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors.toStdString(), HasSubstr("make_catalogue: "));
    EXPECT_THAT(run.errors.toStdString(), HasSubstr((folder() + "/classes.csv").toStdString()));
    EXPECT_FALSE(QFile::exists(database()));
}

TEST_F(MakeCatalogue, NamesADatabaseThatCannotBeWritten)
{
    putFiles(CatalogueText());
    ASSERT_TRUE(QDir().mkdir(database()));
    const ProgramRun run = runMakeCatalogue({folder(), database()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors.toStdString(), HasSubstr(database().toStdString()));
    EXPECT_THAT(QDir(database()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), IsEmpty());
}

TEST_F(MakeCatalogue, AFullDiskLeavesTheOlderDatabase)
{
    Faults faults;
    const CatalogueData data = parseShipData(CatalogueText().files(), faults);
    put("ShipDatabase.mdb", "older");
    {
        const testing::FullDisk full(1000);
        EXPECT_THROW(writeShipDatabase(data, database()), RuntimeError);
    }
    EXPECT_EQ(bytesOf(database()), "older");
}

TEST_F(MakeCatalogue, CountsShipsByNavyAndType)
{
    CatalogueText text;
    CatalogueText::set(text.classes, 3, "type", "TR");
    CatalogueText::set(text.ships, 425, "type", "TR");
    CatalogueText::set(text.classes, 5, "type", "BB");
    for (std::size_t line = 825; line < 825 + 198; ++line) {
        CatalogueText::set(text.ships, line, "type", "BB");
    }
    putFiles(text);
    const ProgramRun run = runMakeCatalogue({"--summary", folder()});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "navy      BB    BC    CA    CL    DD    TR   all\n"
                          "RN         0     0     0     0   423     1   424\n"
                          "USN        0     0     0     0   399     0   399\n"
                          "KM       198     0     0     0     0     0   198\n"
                          "IJN        0     0     0     0   245     0   245\n"
                          "all      198     0     0     0  1067     1  1266\n");
    EXPECT_FALSE(QFile::exists(database()));
}

TEST_F(MakeCatalogue, TheSummaryRefusesFaultsToo)
{
    CatalogueText text;
    CatalogueText::set(text.ships, 2, "name", "");
    putFiles(text);
    const ProgramRun run = runMakeCatalogue({"--summary", folder()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "ships.csv:2: name is empty\n");
}

TEST_F(MakeCatalogue, TellsHowItIsUsed)
{
    for (const QStringList& arguments :
         {QStringList{}, QStringList{folder()}, QStringList{folder(), database(), "more"},
          QStringList{folder(), "--summary"}, QStringList{folder(), ""}}) {
        const ProgramRun run = runMakeCatalogue(arguments);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_THAT(run.errors.toStdString(), StartsWith(usage.toStdString()));
        EXPECT_EQ(run.output, "");
    }
}

} // namespace
} // namespace torvane
