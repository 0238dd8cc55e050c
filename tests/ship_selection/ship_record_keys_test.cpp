#include "ship_record_fixture.h"
#include "store/profile_keys.h"

#include <array>

namespace torvane {
namespace {

struct Cell
{
    const char* key;
    const char* value;
};

// Typed anew, so that a slip in the program's own table shows.
constexpr std::array<Cell, 77> record{{
    {"NAME", "Exeter"},
    {"SHORTNAME", "the short name"},
    {"TYPE", "the type"},
    {"CLASS", "the class"},
    {"NAVY", "the navy"},
    {"XPOSITION", "0.000000"},
    {"YPOSITION", "0.000000"},
    {"ZPOSITION", "0.000000"},
    {"CREWQUALITY", "Average"},
    {"CREWFATIGUE", "Normal"},
    {"NIGHTTRAINING", "Average"},
    {"PREVIOUSCOMBAT", "None"},
    {"CURRENTHITPOINTS", "class f"},
    {"CURRENTFLOATPOINTS", "class g"},
    {"CURRENTFIRECOUNT", "0"},
    {"PROPULSIONSYSTEMPERCENTAGE", "100"},
    {"PROPULSIONSYSTEMDAMAGE", "0"},
    {"MANUEVERSYSTEMDIRECTION", "Center"},
    {"MANUEVERSYSTEMDAMAGE", "0"},
    {"RADARTYPE", "Average"},
    {"RADARDAMAGE", "0"},
    {"ELECTRICALSYSTEMDAMAGE", "0"},
    {"BRIDGEDAMAGE", "0"},
    {"DAMAGECONTROLPERCENTAGE", "100"},
    {"DAMAGECONTROLDAMAGE", "0"},
    {"SEARCHLIGHTP1DAMAGE", "0"},
    {"SEARCHLIGHTP2DAMAGE", "0"},
    {"SEARCHLIGHTS1DAMAGE", "0"},
    {"SEARCHLIGHTS2DAMAGE", "0"},
    {"CIWPERCENTAGE", "100"},
    {"CIWDAMAGE", "0"},
    {"DIRECTOR1DAMAGE", "0"},
    {"DIRECTOR2DAMAGE", "0"},
    {"TORPMOUNT1TORPSLEFT", "class x"},
    {"TORPMOUNT1DAMAGE", "0"},
    {"TORPMOUNT2TORPSLEFT", "class y"},
    {"TORPMOUNT2DAMAGE", "0"},
    {"TORPMOUNT3TORPSLEFT", "class z"},
    {"TORPMOUNT3DAMAGE", "0"},
    {"TORPMOUNT4TORPSLEFT", "class aa"},
    {"TORPMOUNT4DAMAGE", "0"},
    {"SECONDARYGUNSFORECNT", "class o"},
    {"SECONDARYGUNSAFTCNT", "class p"},
    {"SECONDARYGUNSPORTCNT", "class q"},
    {"SECONDARYGUNSSTBCNT", "class r"},
    {"SECONDARYMAGDAMAGE", "0"},
    {"SECONDARYMAGHE", "class t"},
    {"SECONDARYMAGCOM", "class v"},
    {"SECONDARYMAGAP", "class u"},
    {"MGTADAMAGE", "0"},
    {"MGTBDAMAGE", "0"},
    {"MGTCDAMAGE", "0"},
    {"MGTDDAMAGE", "0"},
    {"MGTEDAMAGE", "0"},
    {"MGTGDAMAGE", "0"},
    {"MGTHDAMAGE", "0"},
    {"MGTIDAMAGE", "0"},
    {"MGTJDAMAGE", "0"},
    {"MGTLDAMAGE", "0"},
    {"MGTMDAMAGE", "0"},
    {"MGTNDAMAGE", "0"},
    {"MGTODAMAGE", "0"},
    {"MGTQDAMAGE", "0"},
    {"MGTRDAMAGE", "0"},
    {"MGTTDAMAGE", "0"},
    {"MGTUDAMAGE", "0"},
    {"MGTXDAMAGE", "0"},
    {"MGTYDAMAGE", "0"},
    {"MGTZDAMAGE", "0"},
    {"MAGADAMAGE", "0"},
    {"MAGAHE", "class h"},
    {"MAGAAP", "class i"},
    {"MAGACOM", "class j"},
    {"MAGBDAMAGE", "0"},
    {"MAGBHE", "class k"},
    {"MAGBAP", "class l"},
    {"MAGBCOM", "class m"},
}};

class ShipRecordKeys : public testing::ShipRecordFixture
{
protected:
    /// The record above with another radar and, if asked, without position.
    static Lines expected(const char* radar = "Average", bool withPosition = true)
    {
        Lines lines;
        for (const Cell& cell : record) {
            if (withPosition || !QByteArrayView(cell.key).endsWith("POSITION")) {
                lines.emplaceBack(cell.key, QByteArrayView(cell.key) == "RADARTYPE" ? radar : cell.value);
            }
        }
        return lines;
    }

    static void expectSame(const Lines& written, const Lines& wanted)
    {
        ASSERT_EQ(written.size(), wanted.size());
        for (qsizetype i = 0; i < wanted.size(); ++i) {
            EXPECT_EQ(written[i].first, wanted[i].first) << "key " << i + 1;
            EXPECT_EQ(written[i].second, wanted[i].second) << wanted[i].first.toStdString();
        }
    }
};

TEST_F(ShipRecordKeys, AreThoseOfTheProfileInItsOrder)
{
    ASSERT_EQ(shipKeys.size(), record.size());
    for (std::size_t i = 0; i < record.size(); ++i) {
        EXPECT_EQ(shipKeys[i].toString(), QString(record[i].key)) << "key " << i + 1;
    }
}

TEST_F(ShipRecordKeys, OfAShipOfANewDivisionHaveTheseValues)
{
    makeTellingCatalogue();
    files.write(files.divisionFile(Side::Blue, 1), {"CA Exeter"});
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", true);
    expectSame(linesOf(profile.path(), "DIVISION0SHIP0"), expected());
}

TEST_F(ShipRecordKeys, OutsideCreateModeAreWrittenWithoutThePosition)
{
    makeTellingCatalogue();
    files.write(files.divisionFile(Side::Blue, 1), {"CA Exeter"});
    records.saveindivShipInfoINI(Side::Blue, 1, "DIVISION0", false);
    const Lines written = linesOf(profile.path(), "DIVISION0SHIP0");
    EXPECT_EQ(written.size(), 74);
    expectSame(written, expected("Average", false));
}

TEST_F(ShipRecordKeys, OfAShipNewToAnEditedDivisionHaveTheseValues)
{
    makeTellingCatalogue();
    records.AddIndividualShip("CA", "Exeter", "DIVISION2SHIP4");
    expectSame(linesOf(profile.path(), "DIVISION2SHIP4"), expected());
}

TEST_F(ShipRecordKeys, OfAPickedShipHaveTheHistoricalRadar)
{
    makeTellingCatalogue();
    records.writeShipDataRecord("Exeter");
    expectSame(linesOf(files.iniShipData(), "EXETER"), expected("Historical"));
}

TEST_F(ShipRecordKeys, OfAnEmptyPlaceAreEmptyButForNameAndPosition)
{
    records.RemoveIndividualShip("DIVISION2SHIP4");
    Lines empty;
    for (const Cell& cell : record) {
        const QByteArrayView key(cell.key);
        empty.emplaceBack(cell.key, key == "NAME" ? "NO SHIP" : (key.endsWith("POSITION") ? "0.000000" : ""));
    }
    expectSame(linesOf(profile.path(), "DIVISION2SHIP4"), empty);
}

} // namespace
} // namespace torvane
