#include "ship_record_fixture.h"
#include "written_division.h"

#include <QDir>

#include <array>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace torvane {
namespace {

using ::testing::AllOf;
using testing::expectError;
using ::testing::HasSubstr;

class ShipRecord : public testing::ShipRecordFixture
{
protected:
    /// The two ships of the kept division and twelve further ones of one class.
    void makeCatalogue() const
    {
        testing::CatalogueFile file(catalogueFile());
        for (int i = 0; i < 12; ++i) {
            file.addShip(QStringLiteral("Z %1").arg(i), QStringLiteral("Z%1").arg(i), "DD", "1934", "KM");
        }
        file.addShip("Ajax", "Ajax RN", "CL", "Leander", "RN");
        file.addShip("Exeter", "Exeter", "CA", "York", "RN");
        addClass(file, "1934", 0);
        addClass(file, "York", 1);
        addClass(file, "Leander", 2);
    }

    void putDivision(Side side, int number, const QStringList& lines) const
    {
        files.write(files.divisionFile(side, number), lines);
    }

    QString read(const char* section, const char* key) const
    {
        return profile.GetIniKey(QString(section), QString(key));
    }

private:
    static void addClass(testing::CatalogueFile& file, const QString& name, int kind)
    {
        // 1934, York, Leander.
        const std::array<std::pair<const char*, std::array<const char*, 3>>, 19> values{{
            {"f", {"150", "410", "355"}}, {"g", {"300", "820", "710"}}, {"x", {"4", "3", "4"}},
            {"y", {"4", "5", "6"}},       {"z", {"0", "7", "8"}},       {"aa", {"0", "9", "10"}},
            {"o", {"0", "11", "12"}},     {"p", {"0", "13", "14"}},     {"q", {"0", "15", "16"}},
            {"r", {"0", "17", "18"}},     {"t", {"0", "190", "200"}},   {"v", {"0", "210", "220"}},
            {"u", {"0", "230", "240"}},   {"h", {"300", "250", "260"}}, {"i", {"300", "270", "280"}},
            {"j", {"0", "290", "300"}},   {"k", {"300", "310", "320"}}, {"l", {"300", "330", "340"}},
            {"m", {"0", "350", "360"}},
        }};
        QList<std::pair<QString, QString>> fields;
        for (const auto& [field, text] : values) {
            fields.emplaceBack(field, text[static_cast<std::size_t>(kind)]);
        }
        file.addClass(name, fields);
    }
};

/// Counts how often a file of that name is put in place in a folder.
class Arrivals
{
public:
    explicit Arrivals(const QString& folder) : m_handle(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(::inotify_add_watch(m_handle, QFile::encodeName(folder).constData(),
                                      IN_CREATE | IN_MOVED_TO | IN_CLOSE_WRITE),
                  0);
    }
    ~Arrivals() { ::close(m_handle); }
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;

    int of(const char* name) const
    {
        alignas(inotify_event) std::array<char, 16384> bytes{};
        const ssize_t size = ::read(m_handle, bytes.data(), bytes.size());
        int count = 0;
        for (ssize_t at = 0; at < size;) {
            inotify_event event{};
            std::memcpy(&event, bytes.data() + at, sizeof event);
            const bool isNamed = event.len > 0;
            count += isNamed && qstrcmp(bytes.data() + at + sizeof event, name) == 0 ? 1 : 0;
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
        return count;
    }

private:
    int m_handle;
};

TEST_F(ShipRecord, OfANewDivisionGivesThisFile)
{
    makeCatalogue();
    putDivision(Side::Blue, 2, {"CA Exeter", "CL Ajax"});
    records.saveindivShipInfoINI(Side::Blue, 2, "DIVISION3", true);
    EXPECT_EQ(bytesOf(profile.path()), QByteArray(testing::writtenDivision).replace("\n", "\r\n"));
}

TEST_F(ShipRecord, OfANewDivisionComesFromTheFileOfItsSideAndNumber)
{
    makeCatalogue();
    putDivision(Side::Blue, 1, {"DD Z 1"});
    putDivision(Side::Red, 1, {"DD Z 2"});
    putDivision(Side::Blue, 2, {"DD Z 3"});
    putDivision(Side::Red, 2, {"DD Z 4"});
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true);
    records.saveindivShipInfoINI(Side::Red, 1, "DIVISION1", true);
    records.saveindivShipInfoINI(Side::Red, 2, "DIVISION2", true);
    records.saveindivShipInfoINI(Side::Blue, 2, "DIVISION11", true);
    EXPECT_EQ(read("DIVISION0SHIP0", "NAME"), "Z 1");
    EXPECT_EQ(read("DIVISION1SHIP0", "NAME"), "Z 2");
    EXPECT_EQ(read("DIVISION2SHIP0", "NAME"), "Z 4");
    EXPECT_EQ(read("DIVISION11SHIP0", "NAME"), "Z 3");
}

TEST_F(ShipRecord, WithoutTheDivisionFileWritesNothing)
{
    makeCatalogue();
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true);
    EXPECT_FALSE(QFile::exists(profile.path()));
}

TEST_F(ShipRecord, OfADivisionFileWithoutALineWritesNothing)
{
    makeCatalogue();
    putDivision(Side::Blue, 1, {});
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true);
    EXPECT_FALSE(QFile::exists(profile.path()));
}

TEST_F(ShipRecord, OfAnUnreadableDivisionFileIsTheErrorOfTheFile)
{
    makeCatalogue();
    ASSERT_TRUE(QDir().mkdir(files.divisionFile(Side::Blue, 1)));
    expectError(
        RuntimeError::PathAccessError,
        [this] { records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true); },
        HasSubstr("DivisionA1.txt"));
}

TEST_F(ShipRecord, OfADivisionOfTenIsWrittenForEachInOneFileWrite)
{
    makeCatalogue();
    QStringList lines;
    QStringList sections;
    for (int i = 9; i >= 0; --i) {
        lines.append(QStringLiteral("DD Z %1").arg(i));
        sections.append(QStringLiteral("[DIVISION7SHIP%1]").arg(9 - i));
    }
    putDivision(Side::Red, 6, lines);
    const Arrivals arrivals(folder());
    records.saveindivShipInfoINI(Side::Red, 6, "DIVISION7", true);
    EXPECT_EQ(arrivals.of("iniTemp.bmm"), 1);
    EXPECT_EQ(sectionNames(profile.path()), sections);
    for (int i = 0; i < 10; ++i) {
        const QString section = QStringLiteral("DIVISION7SHIP%1").arg(i);
        EXPECT_EQ(linesOf(profile.path(), section).size(), 77);
        EXPECT_EQ(profile.GetIniKey(section, u"SHORTNAME"), QStringLiteral("Z%1").arg(9 - i));
    }
}

TEST_F(ShipRecord, OfOneShipIsOneFileWrite)
{
    makeCatalogue();
    const Arrivals arrivals(folder());
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0");
    EXPECT_EQ(arrivals.of("iniTemp.bmm"), 1);
    records.RemoveIndividualShip("DIVISION0SHIP0");
    EXPECT_EQ(arrivals.of("iniTemp.bmm"), 1);
    records.writeShipDataRecord("Exeter");
    EXPECT_EQ(arrivals.of("iniShipData.bmm"), 1);
}

TEST_F(ShipRecord, NameIsTheLineFromItsFourthCharacterOn)
{
    makeCatalogue();
    testing::RawDatabase(catalogueFile()).run("UPDATE ShipDataB SET Name = 'Z 1 alt' WHERE Name = 'Z 1'");
    putDivision(Side::Blue, 1, {"BBxZ 1 alt"});
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true);
    EXPECT_EQ(read("DIVISION0SHIP0", "NAME"), "Z 1 alt");
    EXPECT_EQ(read("DIVISION0SHIP0", "TYPE"), "DD");
}

TEST_F(ShipRecord, TypeIsThatOfTheCatalogue)
{
    makeCatalogue();
    records.AddIndividualShip("TR", "Exeter", "DIVISION0SHIP0");
    EXPECT_EQ(read("DIVISION0SHIP0", "TYPE"), "CA");
}

TEST_F(ShipRecord, OfAShipAddedHasTheStartPositionUntilItIsPlaced)
{
    makeCatalogue();
    profile.write(u"DIVISION0SHIP0", u"XPOSITION", u"14250");
    profile.write(u"DIVISION0SHIP0", u"ZPOSITION", u"-300");
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0");
    for (const char* key : {"XPOSITION", "YPOSITION", "ZPOSITION"}) {
        EXPECT_EQ(read("DIVISION0SHIP0", key), "0.000000") << key;
    }
}

TEST_F(ShipRecord, OutsideCreateModeKeepsThePositionThatStandsThere)
{
    makeCatalogue();
    profile.write(u"DIVISION0SHIP0", u"XPOSITION", u"14250");
    putDivision(Side::Blue, 1, {"CA Exeter"});
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", false);
    EXPECT_EQ(read("DIVISION0SHIP0", "XPOSITION"), "14250");
    EXPECT_EQ(read("DIVISION0SHIP0", "ZPOSITION"), "INVALID");
}

TEST_F(ShipRecord, OverAnOldOneReplacesEachValueInItsPlace)
{
    makeCatalogue();
    records.AddIndividualShip("CL", "Ajax", "DIVISION0SHIP0");
    const QByteArray ajax = bytesOf(profile.path());
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0");
    profile.write(u"DIVISION0SHIP0", u"RADARDAMAGE", u"50");
    profile.write(u"DIVISION0SHIP0", u"CREWQUALITY", u"Elite");
    ASSERT_NE(bytesOf(profile.path()), ajax);
    records.AddIndividualShip("CL", "Ajax", "DIVISION0SHIP0");
    EXPECT_EQ(bytesOf(profile.path()), ajax);
}

TEST_F(ShipRecord, LeavesTheOtherSectionsAlone)
{
    makeCatalogue();
    records.AddIndividualShip("CL", "Ajax", "DIVISION0SHIP0");
    records.AddIndividualShip("DD", "Z 1", "DIVISION1SHIP0");
    const QByteArray before = bytesOf(profile.path());
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP1");
    records.RemoveIndividualShip("DIVISION0SHIP2");
    EXPECT_TRUE(bytesOf(profile.path()).startsWith(before));
}

TEST_F(ShipRecord, OfAnEmptyPlaceReadsInvalidButForNameAndPosition)
{
    makeCatalogue();
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP3");
    records.RemoveIndividualShip("DIVISION0SHIP3");
    EXPECT_EQ(read("DIVISION0SHIP3", "NAME"), "NO SHIP");
    EXPECT_EQ(read("DIVISION0SHIP3", "XPOSITION"), "0.000000");
    EXPECT_EQ(read("DIVISION0SHIP3", "CLASS"), "INVALID");
    EXPECT_EQ(read("DIVISION0SHIP3", "MAGBCOM"), "INVALID");
    EXPECT_EQ(linesOf(profile.path(), "DIVISION0SHIP3").size(), 77);
}

TEST_F(ShipRecord, OfANameThatTheCatalogueLacksEndsBehindTheName)
{
    makeCatalogue();
    expectError(
        RuntimeError::NoCurrentRecord, [this] { records.AddIndividualShip("BB", "Hood", "DIVISION0SHIP0"); },
        AllOf(HasSubstr("Hood"), HasSubstr("ShipDataB")));
    EXPECT_EQ(bytesOf(profile.path()), "[DIVISION0SHIP0]\r\nNAME=Hood\r\n");
    expectError(
        RuntimeError::NoCurrentRecord, [this] { records.writeShipDataRecord("Hood"); }, HasSubstr("Hood"));
    EXPECT_EQ(linesOf(files.iniShipData(), "HOOD"), (Lines{{"NAME", "Hood"}}));
}

TEST_F(ShipRecord, OfANameThatTheCatalogueLacksEndsTheDivisionThere)
{
    makeCatalogue();
    putDivision(Side::Blue, 1, {"CA Exeter", "BB Hood", "CL Ajax"});
    expectError(
        RuntimeError::NoCurrentRecord,
        [this] { records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true); }, HasSubstr("Hood"));
    EXPECT_EQ(sectionNames(profile.path()), QStringList({"[DIVISION0SHIP0]", "[DIVISION0SHIP1]"}));
    EXPECT_EQ(linesOf(profile.path(), "DIVISION0SHIP0").size(), 77);
    EXPECT_EQ(linesOf(profile.path(), "DIVISION0SHIP1"), (Lines{{"NAME", "Hood"}}));
}

TEST_F(ShipRecord, OfAClassThatTheCatalogueLacksEndsBeforeTheFirstClassField)
{
    makeCatalogue();
    testing::RawDatabase(catalogueFile()).run("DELETE FROM ShipDaClass WHERE b = 'York'");
    expectError(
        RuntimeError::NoCurrentRecord,
        [this] { records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0"); },
        AllOf(HasSubstr("York"), HasSubstr("ShipDaClass")));
    EXPECT_EQ(keysOf(linesOf(profile.path(), "DIVISION0SHIP0")),
              QStringList({"NAME", "SHORTNAME", "TYPE", "CLASS", "NAVY", "XPOSITION", "YPOSITION",
                           "ZPOSITION", "CREWQUALITY", "CREWFATIGUE", "NIGHTTRAINING", "PREVIOUSCOMBAT"}));
}

TEST_F(ShipRecord, WithoutACatalogueIsTheErrorOfItsFile)
{
    expectError(
        RuntimeError::FileNotFound, [this] { records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0"); },
        HasSubstr("ShipDatabase.mdb"));
}

TEST_F(ShipRecord, OfAnEmptyCatalogueFieldHasTheKeyAndReadsInvalid)
{
    makeCatalogue();
    testing::RawDatabase(catalogueFile()).run("UPDATE ShipDaClass SET x = NULL");
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0");
    EXPECT_EQ(read("DIVISION0SHIP0", "TORPMOUNT1TORPSLEFT"), "INVALID");
    EXPECT_EQ(linesOf(profile.path(), "DIVISION0SHIP0").size(), 77);
}

TEST_F(ShipRecord, HasTheNamesOfTheCodePage)
{
    makeTellingCatalogue(QStringLiteral("Köln"));
    putDivision(Side::Red, 1, {QStringLiteral("CL Köln")});
    records.saveindivShipInfoINI(Side::Red, 1, "DIVISION0", true);
    EXPECT_EQ(read("DIVISION0SHIP0", "NAME"), QStringLiteral("Köln"));
    EXPECT_TRUE(bytesOf(profile.path()).contains("NAME=K\xf6ln\r\n"));
}

TEST_F(ShipRecord, OfTwoPicksOfOneNameIsOneSection)
{
    makeCatalogue();
    records.writeShipDataRecord("Exeter");
    const QByteArray once = bytesOf(files.iniShipData());
    records.writeShipDataRecord("Exeter");
    EXPECT_EQ(bytesOf(files.iniShipData()), once);
    EXPECT_EQ(sectionNames(files.iniShipData()), QStringList({"[SHIP_DATA_RECORDS]", "[EXETER]"}));
}

TEST_F(ShipRecord, OfAPickLeavesTheWorkingProfileAlone)
{
    makeCatalogue();
    records.writeShipDataRecord("Exeter");
    EXPECT_FALSE(QFile::exists(profile.path()));
    EXPECT_FALSE(QFile::exists(files.shipTrack()));
}

TEST_F(ShipRecord, OfAPickStandsUnderTheNameInCapitals)
{
    makeTellingCatalogue(QStringLiteral("Preußen-Übersee é"));
    records.writeShipDataRecord(QStringLiteral("Preußen-Übersee é"));
    EXPECT_EQ(sectionNames(files.iniShipData()),
              QStringList({"[SHIP_DATA_RECORDS]", QStringLiteral("[PREUßEN-ÜBERSEE É]")}));
    EXPECT_EQ(linesOf(files.iniShipData(), QStringLiteral("PREUßEN-ÜBERSEE É")).value(0).second,
              QStringLiteral("Preußen-Übersee é"));
}

TEST_F(ShipRecord, VersionOfThePicksIsWrittenAtEveryPick)
{
    makeCatalogue();
    records.writeShipDataRecord("Exeter");
    EXPECT_EQ(linesOf(files.iniShipData(), "SHIP_DATA_RECORDS"), (Lines{{"VERSIONNUMBER", "64"}}));
    store.write(files.iniShipData(), u"SHIP_DATA_RECORDS", u"VERSIONNUMBER", u"1");
    records.writeShipDataRecord("Ajax");
    EXPECT_EQ(linesOf(files.iniShipData(), "SHIP_DATA_RECORDS"), (Lines{{"VERSIONNUMBER", "64"}}));
}

TEST_F(ShipRecord, OfTheSameShipDiffersBetweenProfileAndPicksInTheRadarAlone)
{
    makeCatalogue();
    records.AddIndividualShip("CA", "Exeter", "DIVISION0SHIP0");
    records.writeShipDataRecord("Exeter");
    const Lines inProfile = linesOf(profile.path(), "DIVISION0SHIP0");
    Lines picked = linesOf(files.iniShipData(), "EXETER");
    ASSERT_EQ(picked.size(), 77);
    EXPECT_EQ(inProfile[19], std::pair(QString("RADARTYPE"), QString("Average")));
    EXPECT_EQ(picked[19], std::pair(QString("RADARTYPE"), QString("Historical")));
    picked[19] = inProfile[19];
    EXPECT_EQ(picked, inProfile);
}

} // namespace
} // namespace torvane
