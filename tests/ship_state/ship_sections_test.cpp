#include "ship_state/ship_sections.h"

#include "stored_ship.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

class Sections : public StoredShips
{
protected:
    void putShip(const QString& section, const QString& name, const QString& shortName,
                 const QString& shipClass = u"a class"_s)
    {
        put(section, {{"NAME", name}, {"SHORTNAME", shortName}, {"CLASS", shipClass}});
    }
};

TEST_F(Sections, AreFoundByShortNameFromTheFirstToTheLast)
{
    putShip(u"DIVISION0SHIP0"_s, u"Exeter"_s, u"Exeter"_s);
    putShip(u"DIVISION11SHIP9"_s, u"Prinz Eugen"_s, u"P. Eugen"_s);
    EXPECT_EQ(sectionToShow(profile, u"Exeter"_s), u"DIVISION0SHIP0"_s);
    EXPECT_EQ(sectionToShow(profile, u"P. Eugen"_s), u"DIVISION11SHIP9"_s);
    EXPECT_EQ(findShipSection(profile, u"P. Eugen"_s, u"another class"_s), u"DIVISION11SHIP9"_s);
    EXPECT_EQ(sectionToShow(profile, u"Prinz Eugen"_s), QString());
    EXPECT_EQ(findShipSection(profile, u"Prinz Eugen"_s, u"a class"_s), QString());
}

TEST_F(Sections, BeyondTwelveDivisionsOfTenShipsAreNotLookedAt)
{
    putShip(u"DIVISION0SHIP10"_s, u"Eleventh"_s, u"Eleventh"_s);
    putShip(u"DIVISION12SHIP0"_s, u"Thirteenth"_s, u"Thirteenth"_s);
    for (const char* name : {"Eleventh", "Thirteenth"}) {
        EXPECT_EQ(sectionToShow(profile, QString::fromLatin1(name)), QString());
        EXPECT_EQ(findShipSection(profile, QString::fromLatin1(name), u"a class"_s), QString());
    }
}

TEST_F(Sections, OfOneShortNameAreTheFirstInTheWalk)
{
    putShip(u"DIVISION4SHIP0"_s, u"Second"_s, u"Twin"_s);
    putShip(u"DIVISION1SHIP7"_s, u"First"_s, u"Twin"_s);
    EXPECT_EQ(sectionToShow(profile, u"Twin"_s), u"DIVISION1SHIP7"_s);
    EXPECT_EQ(findShipSection(profile, u" Twin "_s, u"a class"_s), u"DIVISION1SHIP7"_s);
}

TEST_F(Sections, OfTheDuncansAreShownByNameAndSavedByClass)
{
    putShip(u"DIVISION0SHIP0"_s, u"Duncan USN"_s, u"Duncan"_s, u"Benson"_s);
    putShip(u"DIVISION1SHIP0"_s, u"Duncan RN"_s, u"Duncan"_s, u"D class leader"_s);
    EXPECT_EQ(sectionToShow(profile, u"Duncan USN"_s), u"DIVISION0SHIP0"_s);
    EXPECT_EQ(sectionToShow(profile, u"Duncan RN"_s), u"DIVISION1SHIP0"_s);
    EXPECT_EQ(findShipSection(profile, u"Duncan USN"_s, u" Benson "_s), u"DIVISION0SHIP0"_s);
    EXPECT_EQ(findShipSection(profile, u"Duncan RN"_s, u"D class leader"_s), u"DIVISION1SHIP0"_s);
    EXPECT_EQ(findShipSection(profile, u"Duncan RN"_s, u"Benson"_s), u"DIVISION0SHIP0"_s);
    EXPECT_EQ(findShipSection(profile, u"Duncan"_s, u"D class leader"_s), u"DIVISION1SHIP0"_s);
    EXPECT_EQ(findShipSection(profile, u"Duncan USN"_s, u"Fletcher"_s), QString());
    EXPECT_TRUE(isNamedDuncan(u"Duncan USN"_s));
    EXPECT_TRUE(isNamedDuncan(u"Duncan RN"_s));
    EXPECT_FALSE(isNamedDuncan(u"Duncan"_s));
}

TEST_F(Sections, OfEmptiedPlacesAndOfNoShipAreNeverFound)
{
    put(u"DIVISION0SHIP0"_s, {{"NAME", "NO SHIP"}, {"SHORTNAME", ""}});
    put(u"DIVISION0SHIP1"_s, {{"SHORTNAME", "Nameless"}});
    put(u"DIVISION0SHIP2"_s, {{"NAME", "Worn"}, {"CLASS", "York"}});
    EXPECT_EQ(sectionToShow(profile, u"Nameless"_s), QString());
    EXPECT_EQ(sectionToShow(profile, u"INVALID"_s), u"DIVISION0SHIP2"_s);
    EXPECT_EQ(sectionToShow(profile, QString()), QString());
    EXPECT_EQ(findShipSection(profile, QString(), QString()), QString());
}

TEST_F(Sections, OfAMissingProfileAreNone)
{
    EXPECT_EQ(sectionToShow(profile, u"Exeter"_s), QString());
}

} // namespace
} // namespace torvane::testing
