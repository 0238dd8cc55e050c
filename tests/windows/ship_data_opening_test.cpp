#include "ship_data_fixture.h"
#include "ship_state/stored_ship.h"

// Which ship the dialog shows and against what, and where a save goes.

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

class OpeningAShip : public OneShipDialog
{
protected:
    /// Names of the boxes of the turrets that are offered, letter by letter.
    QString offeredTurrets()
    {
        QString offered;
        for (const char letter : std::string_view("ABCDEGHIJLMNOQRTUXYZ")) {
            if (!box(("chkMG_TUR_" + std::string(1, letter)).c_str())->isHidden()) {
                offered.append(QLatin1Char(letter));
            }
        }
        return offered;
    }
    /// The first lines of the profile.
    QStringList firstLines(qsizetype count) const
    {
        return QString::fromLatin1(profile()).split(u"\r\n"_s).first(count);
    }
    /// The name before the sign of each line.
    static QStringList keysOf(const QStringList& lines)
    {
        QStringList keys;
        for (const QString& line : lines) {
            keys.append(line.section(u'=', 0, 0));
        }
        return keys;
    }
};

TEST_F(OpeningAShip, TheMaximaAreThoseOfTheCataloguesClassAndNotOfTheRecords)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    store("CLASS", "Deutschland");
    store("CURRENTHITPOINTS", "1000");
    open(u"CA Exeter"_s);
    EXPECT_EQ(shown("lblHitPt"), u"50 %"_s);
    EXPECT_EQ(offeredTurrets(), u"AB"_s);
    EXPECT_EQ(shown("lblShipClass"), u"Deutschland"_s);
}

TEST_F(OpeningAShip, AShipWithoutASectionLeavesTheDialogAsTheShipBeforeFilledIt)
{
    openExeter();
    cancel();
    open(u"CA G. Spee"_s);
    EXPECT_EQ(shown("lblShipName"), u"CA Graf Spee"_s);
    EXPECT_EQ(shown("LblShrtName"), u"Exeter"_s);
    EXPECT_EQ(shown("lblShipClass"), u"York"_s);
    EXPECT_EQ(shown("lblHitPt"), u"100 %"_s);
    EXPECT_EQ(offeredTurrets(), u"AZ"_s);
    save();
    EXPECT_EQ(stored("CURRENTHITPOINTS"), u"3000"_s);
    EXPECT_FALSE(profile().contains("[DIVISION1SHIP0]"));
}

TEST_F(OpeningAShip, AClassThatTheCatalogueLacksLeavesMaximaAndTurretsOfTheShipBefore)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    store("SHORTNAME", "Wanderer", "DIVISION1SHIP0");
    store("NAME", "Wanderer of the Sea", "DIVISION1SHIP0");
    store("CURRENTHITPOINTS", "500", "DIVISION1SHIP0");
    store("BRIDGEDAMAGE", "-1");
    open(u"CA Exeter"_s);
    cancel();
    open(u"TR Wanderer"_s);
    EXPECT_EQ(shown("lblShipName"), u"TR Wanderer of the Sea"_s);
    EXPECT_EQ(shown("lblHitPt"), u"25 %"_s);
    EXPECT_EQ(offeredTurrets(), u"AB"_s);
    EXPECT_FALSE(box("chkBridge")->isChecked());
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(OpeningAShip, ADuncanIsADestroyerInTheHeadWhateverTheMenuSays)
{
    startPastSplash(Language::English);
    putShip(u"Duncan RN"_s);
    putShip(u"Duncan USN"_s, u"DIVISION0SHIP1"_s);
    open(u"CL Duncan RN"_s);
    EXPECT_EQ(shown("lblShipName"), u"DD Duncan RN"_s);
    EXPECT_EQ(shown("LblShrtName"), u"Duncan RN"_s);
    cancel();
    open(u"TR Duncan USN"_s);
    EXPECT_EQ(shown("lblShipName"), u"DD Duncan USN"_s);
    EXPECT_EQ(shown("LblShrtName"), u"Duncan USN"_s);
}

TEST_F(OpeningAShip, TheShortNameIsWhatFollowsTheTypeWithoutBlanks)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    for (const char* caption : {"CAExeter", "CA   Exeter  ", "  Exeter"}) {
        open(QLatin1StringView(caption));
        EXPECT_EQ(shown("lblShipName"), u"CA Exeter"_s) << caption;
        EXPECT_EQ(shown("LblShrtName"), u"Exeter"_s) << caption;
        cancel();
    }
}

TEST_F(OpeningAShip, ASaveWithoutAShipWritesAllKeysInFrontOfTheProfileAndNoOther)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s, u"DIVISION1SHIP0"_s);
    const QByteArray before = profile();
    open(u"CA Stranger"_s);
    save();
    EXPECT_EQ(keysOf(firstLines(61)), ownedKeys());
    const qsizetype written = firstLines(61).join(u"\r\n"_s).size() + 2;
    EXPECT_EQ(profile().mid(written), before);
}

TEST_F(OpeningAShip, ASaveWritesTheKeysOfABareSectionInTheirOrder)
{
    startPastSplash(Language::English);
    putWorkFile(u"iniTemp.bmm"_s, "[DIVISION0SHIP0]\r\nNAME=Exeter\r\nSHORTNAME=Exeter\r\nCLASS=York\r\n");
    open(u"CA Exeter"_s);
    save();
    const QStringList lines = QString::fromLatin1(profile()).split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 66);
    EXPECT_EQ(lines.first(4),
              QStringList({"[DIVISION0SHIP0]", "NAME=Exeter", "SHORTNAME=Exeter", "CLASS=York"}));
    EXPECT_EQ(keysOf(lines.mid(4, 61)), ownedKeys());
    EXPECT_EQ(lines.last(), QString());
}

} // namespace
} // namespace torvane::testing
