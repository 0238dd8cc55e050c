#include "store/ship_catalogue.h"

#include "platform/runtime_error.h"
#include "support/catalogue_file.h"
#include "support/expect_error.h"
#include "support/printers.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace torvane {
namespace {

using ::testing::AllOf;
using testing::CatalogueFile;
using testing::expectError;
using ::testing::HasSubstr;

class Catalogue : public ::testing::Test
{
protected:
    Catalogue() : catalogue(m_controls) { m_controls.bind(m_folder.path()); }

    QString path() const { return m_folder.filePath("ShipDatabase.mdb"); }

    /// Two cruisers and their classes.
    void makeTwoShips() const
    {
        CatalogueFile file(path());
        file.addShip("Exeter", "Exeter", "CA", "York", "RN");
        file.addShip("Ajax", "Ajax", "CL", "Leander", "RN");
        file.addClass("Leander", {{"e", "32"}, {"length", "555"}, {"width", "56"}});
        file.addClass("York", {{"e", "31"}, {"length", "575"}, {"width", "58"}});
        file.addGunRange("York", "28000");
        file.run("INSERT INTO gunTable VALUES ('8 inch')");
    }

private:
    QTemporaryDir m_folder;
    DataControls m_controls;

protected:
    ShipCatalogue catalogue;
};

TEST_F(Catalogue, HasTheFourControlsOfTheShipDatabase)
{
    makeTwoShips();
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Exeter");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"b"), "Leander");
    EXPECT_EQ(catalogue.GunsRang().value(u"Range"), "28000");
    EXPECT_EQ(catalogue.gunTable().value(u"Name"), "8 inch");
}

TEST_F(Catalogue, MissingIsReportedAtTheFirstUseOfEachControl)
{
    const auto text = AllOf(HasSubstr(path().toStdString()), HasSubstr("is missing"));
    expectError(
        RuntimeError::FileNotFound, [this] { catalogue.gunTable(); }, text);
    expectError(
        RuntimeError::FileNotFound, [this] { catalogue.GunsRang(); }, text);
    expectError(
        RuntimeError::FileNotFound, [this] { catalogue.ShipDataB(); }, text);
    expectError(
        RuntimeError::FileNotFound, [this] { catalogue.ShipDaClass(); }, text);
    expectError(
        RuntimeError::FileNotFound, [this] { catalogue.shipToClass("Exeter"); }, text);
    expectError(
        RuntimeError::FileNotFound, [this] { catalogue.lengthUnits("York"); }, text);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(Catalogue, PutBackIsReadAtTheNextUse)
{
    EXPECT_THROW(catalogue.ShipDataB(), RuntimeError);
    makeTwoShips();
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Exeter");
}

TEST_F(Catalogue, OpensAControlWithoutNeedOfTheOthers)
{
    makeTwoShips();
    testing::RawDatabase(path()).run("DROP TABLE gunTable");
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Exeter");
    expectError(
        RuntimeError::DatabaseFailure, [this] { catalogue.gunTable(); }, HasSubstr("no table gunTable"));
}

TEST_F(Catalogue, IsReadOnce)
{
    makeTwoShips();
    catalogue.shipToClass("Ajax");
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Ajax");
    catalogue.shipToClass("Exeter");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"e"), "31");
}

TEST_F(Catalogue, LeavesShipAndClassCurrentForTheReadsThatFollow)
{
    makeTwoShips();
    catalogue.shipToClass("Exeter");
    EXPECT_EQ(catalogue.ShipDataB().value(u"Type"), "CA");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"b"), "York");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"e"), "31");
}

TEST_F(Catalogue, WithoutTheShipHasNoCurrentRecordAndLeavesTheClass)
{
    makeTwoShips();
    catalogue.shipToClass("Exeter");
    expectError(
        RuntimeError::NoCurrentRecord, [this] { catalogue.shipToClass("Hood"); },
        AllOf(HasSubstr("Name \"Hood\""), HasSubstr("ShipDataB")));
    EXPECT_TRUE(catalogue.ShipDataB().isEOF());
    EXPECT_EQ(catalogue.ShipDaClass().value(u"b"), "York");
}

TEST_F(Catalogue, WithoutTheClassFailsAtTheNextReadOfAClassField)
{
    makeTwoShips();
    testing::RawDatabase(path()).run("UPDATE ShipDataB SET Class = 'Admiral' WHERE Name = 'Ajax'");
    catalogue.shipToClass("Ajax");
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Ajax");
    EXPECT_TRUE(catalogue.ShipDaClass().isEOF());
    expectError(
        RuntimeError::NoCurrentRecord, [this] { catalogue.ShipDaClass().value(u"e"); },
        AllOf(HasSubstr("b \"Admiral\""), HasSubstr("ShipDaClass")));
}

TEST_F(Catalogue, ALookUpForAnotherPurposeMovesTheRowUnderTheReader)
{
    makeTwoShips();
    catalogue.shipToClass("Exeter");
    EXPECT_EQ(catalogue.lengthUnits("Leander"), 185);
    EXPECT_EQ(catalogue.ShipDaClass().value(u"e"), "32");
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Exeter");
}

TEST_F(Catalogue, ShortNameDuncanAppearsTwiceAndNameNeverDoes)
{
    {
        CatalogueFile file(path());
        file.addShip("Duncan USN", "Duncan", "DD", "Benson", "USN");
        file.addShip("Duncan RN", "Duncan", "DD", "D", "RN");
        file.addClass("Benson", {{"e", "37"}});
        file.addClass("D", {{"e", "36"}});
    }
    EXPECT_TRUE(catalogue.ShipDataB().findFirst(u"ShortName", "Duncan"));
    EXPECT_EQ(catalogue.ShipDataB().value(u"Name"), "Duncan USN");
    EXPECT_FALSE(catalogue.ShipDataB().findFirst(u"Name", "Duncan"));
    catalogue.shipToClass("Duncan RN");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"e"), "36");
    catalogue.shipToClass("Duncan USN");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"e"), "37");
}

TEST_F(Catalogue, Of1266RowsWith424OfTheRoyalNavyIsReadWhole)
{
    {
        CatalogueFile file(path());
        file.run("BEGIN");
        const std::pair<const char*, int> navies[] = {{"RN", 424}, {"USN", 399}, {"KM", 198}, {"IJN", 245}};
        for (const auto& [navy, rows] : navies) {
            for (int i = 0; i < rows; ++i) {
                file.addShip(QString(navy) + QString::number(i), "", "DD", "A", navy);
            }
        }
        file.run("COMMIT");
    }
    RecordSource& ships = catalogue.ShipDataB();
    std::map<QString, int> counts;
    std::set<QString> names;
    for (; !ships.isEOF(); ships.MoveNext()) {
        ++counts[ships.value(u"Navy")];
        names.insert(ships.value(u"Name"));
    }
    EXPECT_EQ(counts, (std::map<QString, int>{{"RN", 424}, {"USN", 399}, {"KM", 198}, {"IJN", 245}}));
    EXPECT_EQ(names.size(), 1266U);
    EXPECT_TRUE(ships.findFirst(u"Name", "RN423"));
    EXPECT_TRUE(ships.findFirst(u"Name", "IJN244"));
}

TEST_F(Catalogue, OfAnotherMakerServesWithFurtherTablesAndFieldsInAnyOrder)
{
    testing::RawDatabase(path()).run("CREATE TABLE Notes (Text)");
    testing::RawDatabase(path()).run("CREATE TABLE shipdaclass (Width INTEGER, Tons, LENGTH REAL, B TEXT)");
    testing::RawDatabase(path()).run("INSERT INTO shipdaclass VALUES (58, 8390, 575.0, 'York')");
    testing::RawDatabase(path()).run("CREATE TABLE shipdatab (Built, CLASS TEXT, NAME TEXT)");
    testing::RawDatabase(path()).run("INSERT INTO shipdatab VALUES (1931, 'York', 'Exeter')");
    catalogue.shipToClass("Exeter");
    EXPECT_EQ(catalogue.ShipDaClass().value(u"Tons"), "8390");
    EXPECT_EQ(catalogue.lengthUnits("York"), 192);
    EXPECT_EQ(catalogue.widthUnits("York"), 19);
}

TEST_F(Catalogue, SizeOfAnUnknownClassIsNone)
{
    makeTwoShips();
    EXPECT_EQ(catalogue.lengthUnits("Admiral"), std::nullopt);
    EXPECT_EQ(catalogue.widthUnits("york"), std::nullopt);
    EXPECT_EQ(catalogue.lengthUnits(""), std::nullopt);
    EXPECT_TRUE(catalogue.ShipDaClass().isEOF());
}

TEST_F(Catalogue, SizeIsThatOfTheFirstClassOfTheTrimmedName)
{
    makeTwoShips();
    testing::RawDatabase(path()).run("INSERT INTO ShipDaClass (b, length, width) VALUES ('York', 3, 3)");
    EXPECT_EQ(catalogue.lengthUnits("  York "), 192);
    EXPECT_EQ(catalogue.widthUnits(" York"), 19);
}

struct Size
{
    const char* stored;
    int units;
};

class SizeOnTheMap : public Catalogue, public ::testing::WithParamInterface<Size>
{
};

TEST_P(SizeOnTheMap, IsAThirdRoundedTwice)
{
    {
        CatalogueFile file(path());
        file.addClass("A", {{"length", GetParam().stored}, {"width", "1000"}});
        file.addClass("B", {{"width", GetParam().stored}, {"length", "1000"}});
    }
    EXPECT_EQ(catalogue.lengthUnits("A"), GetParam().units);
    EXPECT_EQ(catalogue.widthUnits("B"), GetParam().units);
}

// 13.5 is 14 before it is divided, 4.5 is 4: halves go to the even number.
INSTANTIATE_TEST_SUITE_P(Sizes, SizeOnTheMap,
                         ::testing::Values(Size{"643.8", 215}, Size{"104", 35}, Size{"600", 200},
                                           Size{" 6 00 ft", 200}, Size{"601", 200}, Size{"602", 201},
                                           Size{"13.5", 5}, Size{"4.5", 1}, Size{"1", 0}, Size{"2", 1},
                                           Size{"0", 0}, Size{"", 0}, Size{"INVALID", 0}, Size{"-5", -2}));

TEST_F(Catalogue, SizeBeyondAWholeNumberIsAnOverflow)
{
    CatalogueFile(path()).addClass("A", {{"length", "6442450944"}, {"width", "1E400"}});
    expectError(
        RuntimeError::Overflow, [this] { catalogue.lengthUnits("A"); }, HasSubstr("2147483648"));
    expectError(
        RuntimeError::Overflow, [this] { catalogue.widthUnits("A"); }, HasSubstr(""));
}

} // namespace
} // namespace torvane
