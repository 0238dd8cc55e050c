#include "ship_data_fixture.h"
#include "store/profile_keys.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

class BadShipData : public OneShipDialog
{
protected:
    /// Values of all keys of a section that the dialog doesn't own.
    QStringList foreignValues(const char* section)
    {
        static const QStringList foreign{"NAME",
                                         "SHORTNAME",
                                         "TYPE",
                                         "CLASS",
                                         "NAVY",
                                         "XPOSITION",
                                         "YPOSITION",
                                         "ZPOSITION",
                                         "PREVIOUSCOMBAT",
                                         "CIWPERCENTAGE",
                                         "CIWDAMAGE",
                                         "DAMAGECONTROLPERCENTAGE",
                                         "TORPMOUNT1TORPSLEFT",
                                         "TORPMOUNT2TORPSLEFT",
                                         "TORPMOUNT3TORPSLEFT",
                                         "TORPMOUNT4TORPSLEFT"};
        QStringList values;
        for (const QString& key : foreign) {
            values.append(stored(key.toLatin1().constData(), section));
        }
        return values;
    }
};

TEST_F(BadShipData, WordsNumbersAndGapsInEveryKeyAreShownAndSavedWithoutABox)
{
    for (const char* value : {"", "-17", "some words", "<b>bold</b>", "1E+12", "0.5", "99999999999"}) {
        startPastSplash(Language::English);
        putShip(u"Exeter"_s);
        for (const QStringView key : shipKeys) {
            if (key != u"NAME" && key != u"SHORTNAME") {
                store(key.toLatin1().constData(), value);
            }
        }
        const QStringList before = foreignValues("DIVISION0SHIP0");
        open(u"CA Exeter"_s);
        EXPECT_EQ(shown("LblShrtName"), u"Exeter"_s);
        save();
        EXPECT_FALSE(dialog().isVisible()) << value;
        EXPECT_EQ(foreignValues("DIVISION0SHIP0"), before) << value;
        EXPECT_TRUE(boxes().isEmpty()) << value;
    }
}

TEST_F(BadShipData, ALongValueIsShownWithoutStretchingTheWindow)
{
    openExeter();
    const QSize before = dialog().size();
    cancel();
    const QByteArray longText(369, 'W');
    for (const char* key : {"CLASS", "NAVY", "CURRENTFIRECOUNT", "CREWQUALITY", "PROPULSIONSYSTEMPERCENTAGE",
                            "MANUEVERSYSTEMDIRECTION", "PROPULSIONSYSTEMDAMAGE", "SECONDARYGUNSFORECNT"}) {
        store(key, longText.constData());
    }
    open(u"CA Exeter"_s);
    EXPECT_EQ(shown("lblShipClass"), QString::fromLatin1(longText));
    EXPECT_EQ(dialog().size(), before);
}

TEST_F(BadShipData, ANumberBeyondAllNumbersIsOneErrorThatNamesItAndSavesOverNoShip)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    putShip(u"Graf Spee"_s, u"DIVISION1SHIP0"_s);
    open(u"CA Exeter"_s);
    cancel();
    store("CURRENTHITPOINTS", "1E999", "DIVISION1SHIP0");
    const QByteArray before = profile();
    open(u"CA G. Spee"_s);
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("1E999"));
    EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Critical);
    EXPECT_EQ(shown("LblShrtName"), QString());
    save();
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_TRUE(profile().endsWith(before));
}

TEST_F(BadShipData, ANumberBeyondAllNumbersAtASaveWritesNothing)
{
    openExeterWith("CURRENTFIRECOUNT", "1E999");
    EXPECT_TRUE(boxes().isEmpty());
    const QByteArray before = profile();
    save();
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(profile(), before);
    cancel();
    EXPECT_TRUE(main().isInputEnabled());
}

TEST_F(BadShipData, AClassBeyondItsSizesIsOneError)
{
    startPastSplash(Language::English);
    putShip(u"Monster"_s);
    open(u"BB Monster"_s);
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("40000"));
    cancel();
    EXPECT_TRUE(main().isInputEnabled());
}

TEST_F(BadShipData, AMissingCatalogueIsOneErrorThatNamesTheFile)
{
    startPastSplash(Language::English);
    store("NAME", "Exeter");
    store("SHORTNAME", "Exeter");
    QFile::remove(workFile(u"ShipDatabase.mdb"_s));
    open(u"CA Exeter"_s);
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("ShipDatabase.mdb"));
    cancel();
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_TRUE(main().isInputEnabled());
}

TEST_F(BadShipData, AShipThatTheCatalogueLacksIsShownAgainstTheClassBefore)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    putShip(u"Graf Spee"_s, u"DIVISION1SHIP0"_s);
    store("NAME", "Stranger", "DIVISION1SHIP0");
    store("SHORTNAME", "Stranger", "DIVISION1SHIP0");
    store("CURRENTHITPOINTS", "500", "DIVISION1SHIP0");
    open(u"CA Exeter"_s);
    cancel();
    open(u"CA Stranger"_s);
    EXPECT_EQ(shown("lblShipName"), u"CA Stranger"_s);
    EXPECT_EQ(shown("LblShrtName"), u"Stranger"_s);
    EXPECT_EQ(shown("lblHitPt"), u"25 %"_s);
    EXPECT_FALSE(box("chkMG_TUR_B")->isHidden());
    save();
    EXPECT_EQ(stored("CURRENTHITPOINTS", "DIVISION1SHIP0"), u"500"_s);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(BadShipData, TheFirstShipOfARunThatTheCatalogueLacksHasNoTurretsAndNoPoints)
{
    startPastSplash(Language::English);
    putShip(u"Duncan RN"_s);
    open(u"DD Duncan RN"_s);
    EXPECT_EQ(shown("lblHitPt"), u"0 %"_s);
    EXPECT_TRUE(box("chkMG_TUR_A")->isHidden());
}

TEST_F(BadShipData, ARemovedShipWhoseEntryStillShowsLeavesTheDialogUnfilled)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    putShip(u"Graf Spee"_s, u"DIVISION1SHIP0"_s);
    editor().shipRecords().RemoveIndividualShip(u"DIVISION0SHIP0"_s);
    const QByteArray before = profile();
    open(u"CA Exeter"_s);
    EXPECT_EQ(shown("lblShipName"), u"CA Exeter"_s);
    EXPECT_EQ(shown("LblShrtName"), QString());
    EXPECT_EQ(shown("lblHitPt"), u"0 %"_s);
    EXPECT_TRUE(boxes().isEmpty());
    save();
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_TRUE(profile().endsWith(before));
}

TEST_F(BadShipData, ACaptionWithoutAShipLeavesTheDialogUnfilled)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    for (const char* caption : {"Ship 1", "", "X", "CA", "INVALID INVALID", "CA NO SHIP"}) {
        open(QString::fromLatin1(caption));
        EXPECT_EQ(shown("LblShrtName"), QString()) << caption;
        cancel();
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(BadShipData, TwoShipsOfOneShortNameShareTheFirstSection)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s, u"DIVISION3SHIP0"_s);
    putShip(u"Exeter"_s, u"DIVISION1SHIP2"_s);
    open(u"CA Exeter"_s);
    tick("chkTorp1");
    save();
    EXPECT_EQ(stored("TORPMOUNT1DAMAGE", "DIVISION1SHIP2"), u"-1"_s);
    EXPECT_EQ(stored("TORPMOUNT1DAMAGE", "DIVISION3SHIP0"), u"0"_s);
}

TEST_F(BadShipData, OpenedAndSavedUntouchedNothingElseInTheProfileChanges)
{
    startPastSplash(Language::English);
    putShip(u"Graf Spee"_s, u"DIVISION1SHIP0"_s);
    putShip(u"Exeter"_s);
    store("MAGBHE", "0"); // the class has none of it
    store("TITLE", "Left alone", "SCENARIODATA");
    const QByteArray before = profile();
    open(u"CA Exeter"_s);
    save();
    EXPECT_EQ(profile(), before);
}

} // namespace
} // namespace torvane::testing
