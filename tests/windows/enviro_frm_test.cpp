#include "overview_fixture.h"

namespace torvane::testing {
namespace {

class EnvironmentWindow : public Dialogs
{
protected:
    void openFresh(Language language = Language::English)
    {
        openNew(language);
        openEnvironment();
    }
};

struct Caption
{
    const char* buddy; ///< the control that the label leads to
    const char* label;
    const char* english;
    const char* german;
};

TEST_F(EnvironmentWindow, EveryLabelIsThatOfTheLanguageAndLeadsToItsField)
{
    const Caption captions[] = {
        {"ComboYear", "lblYear", "Year:", "Jahr:"},
        {"ComboMonth", "lblMonth", "Month:", "Monat:"},
        {"TxtWindSpd", "lblWindSpd", "Wind Speed:", "Windgeschwindigkeit:"},
        {"ComboSeaState", "lblSeaState", "Sea State:", "Zustand auf See:"},
        {"TxtWindDir", "lblWindDir", "Wind Dir:", "Windrichtung:"},
        {"cmbRain", "lblRain", "Rain:", "Regen:"},
        {"TxtVis", "lblVis", "Visibility:", "Sicht:"},
        {"TxtRadar", "lblRadar", "Radar Conditions:", "Radarbedingungen:"},
        {"cmdSunriseHour", "lblSunrise", "Sunrise:", "Sonnenaufgang:"},
        {"cmdSunsetHour", "lblSunset", "Sunset:", "Sonnenuntergang:"},
        {"cmdHours", "lblStartTime", "Start Time:", "Startzeit:"},
        {"cmdGameLenHours", "lblGameLength", "Game Length:", "Spieldauer:"},
        {"ComboLocation", "lblLocation", "Location:", "Lage:"},
        {"ComboAirSup", "lblAirSup", "Air/Sea Control:", "Luft-/Seeübermacht:"},
    };
    for (const Language language : {Language::English, Language::German}) {
        openFresh(language);
        for (const Caption& row : captions) {
            const char* wanted = language == Language::German ? row.german : row.english;
            EXPECT_EQ(plain(envLabel(row.label)->text()), QString::fromUtf8(wanted));
            EXPECT_EQ(envLabel(row.label)->buddy()->objectName(), QLatin1StringView(row.buddy));
            EXPECT_TRUE(envLabel(row.label)->isVisible()) << row.label;
        }
    }
}

TEST_F(EnvironmentWindow, TitleBarAndButtonsStandExactlyAsLaidDown)
{
    const char* const hours[] = {"cmdHours", "cmdSunriseHour", "cmdSunsetHour", "cmdGameLenHours"};
    const char* const minutes[] = {"cmdMinutes", "cmdSunriseMin", "cmdSunsetMin", "cmdGameLenMin"};
    for (const Language language : {Language::English, Language::German}) {
        const bool german = language == Language::German;
        openFresh(language);
        EXPECT_EQ(enviro().windowTitle(), german ? QStringLiteral("Torvane - Umwelt")
                                                 : QStringLiteral("Torvane - Environmental Controls"));
        EXPECT_EQ(envButton("cmdOK")->text(), QStringLiteral("&OK"));
        EXPECT_EQ(envButton("CmdCancel")->text(), QStringLiteral("&Cancel"));
        for (const char* name : hours) {
            EXPECT_EQ(envButton(name)->text(), german ? QStringLiteral("Std.") : QStringLiteral("Hrs"));
        }
        for (const char* name : minutes) {
            EXPECT_EQ(envButton(name)->text(), german ? QStringLiteral("Min.") : QStringLiteral("Mins"));
        }
    }
}

TEST_F(EnvironmentWindow, EveryListHoldsItsEntriesInOrder)
{
    openFresh(Language::English);
    EXPECT_EQ(entries(envList("ComboYear")).join(u'|'), QStringLiteral("1939|1940|1941|1942|1943|1944|1945"));
    EXPECT_EQ(entries(envList("ComboMonth")).join(u'|'),
              QStringLiteral("January|February|March|April|May|June|July|August|September|October|November|"
                             "December"));
    EXPECT_EQ(entries(envList("ComboSeaState")).join(u'|'), QStringLiteral("1|2|3|4|5|6|7|8"));
    EXPECT_EQ(entries(envList("cmbRain")).join(u'|'), QStringLiteral("On|Off"));
    EXPECT_EQ(entries(envList("ComboLocation")).join(u'|'), QStringLiteral("North Atlantic|South Pacific"));
    EXPECT_EQ(entries(envList("ComboAirSup")).join(u'|'), QStringLiteral("None|Force A|Force B|Contested"));
    EXPECT_EQ(entries(envList("ComboMoon")).join(u'|'), QStringLiteral("None|Full|Three Quarters|Half|New"));
    openFresh(Language::German);
    EXPECT_EQ(entries(envList("ComboMonth")).join(u'|'),
              QStringLiteral("Januar|Februar|März|April|Mai|Juni|Juli|August|September|Oktober|November|"
                             "Dezember"));
    EXPECT_EQ(entries(envList("cmbRain")).join(u'|'), QStringLiteral("Ein|Aus"));
    EXPECT_EQ(entries(envList("ComboLocation")).join(u'|'), QStringLiteral("Nordatlantik|Südpazifik"));
    EXPECT_EQ(entries(envList("ComboAirSup")).join(u'|'),
              QStringLiteral("Keine|Streitkraft A|Streitkraft B|Umstritten"));
    EXPECT_EQ(entries(envList("ComboYear")).size(), 7);
    EXPECT_EQ(entries(envList("ComboSeaState")).size(), 8);
}

TEST_F(EnvironmentWindow, ANewScenarioShowsItsDefaults)
{
    for (const Language language : {Language::English, Language::German}) {
        const bool german = language == Language::German;
        openFresh(language);
        EXPECT_EQ(envList("ComboYear")->currentText(), QStringLiteral("1939"));
        EXPECT_EQ(envList("ComboMonth")->currentIndex(), 0);
        EXPECT_EQ(envBox("TxtWindSpd")->text(), QStringLiteral("1"));
        EXPECT_EQ(envList("ComboSeaState")->currentText(), QStringLiteral("1"));
        EXPECT_EQ(envBox("TxtWindDir")->text(), QStringLiteral("360"));
        EXPECT_EQ(envList("cmbRain")->currentText(), german ? QStringLiteral("Aus") : QStringLiteral("Off"));
        EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("100 %"));
        EXPECT_EQ(envBox("TxtRadar")->text(), QStringLiteral("100 %"));
        EXPECT_EQ(envLabel("TxtSunrise")->text(), QStringLiteral("06:30"));
        EXPECT_EQ(envLabel("TxtSunset")->text(), QStringLiteral("19:30"));
        EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("12:30"));
        EXPECT_EQ(envLabel("lblGmLenHour")->text(), QStringLiteral("2"));
        EXPECT_EQ(envLabel("lblGmLenMin")->text(), QStringLiteral("00"));
        EXPECT_EQ(envLabel("TxtGameLen")->text(), QStringLiteral("2:00"));
        EXPECT_EQ(envList("ComboLocation")->currentIndex(), 0);
        EXPECT_EQ(envList("ComboAirSup")->currentIndex(), 0);
        EXPECT_EQ(envList("ComboMoon")->currentText(), QStringLiteral("None"));
        EXPECT_TRUE(envLabel("imgDay")->isVisible());
        EXPECT_FALSE(envLabel("imgNight")->isVisible());
        EXPECT_FALSE(envLabel("TxtGameLen")->isVisible());
        EXPECT_FALSE(envList("ComboMoon")->isVisible());
    }
}

TEST_F(EnvironmentWindow, OkWritesThe23KeysInOrderToAProfileThatLostThem)
{
    openNew();
    saveOverview();
    store("TITLE", "Left alone");
    reopenOverview();
    openEnvironment();
    putWorkFile(QStringLiteral("iniTemp.bmm"), "[SCENARIODATA]\r\nTITLE=Left alone\r\n");
    acceptEnvironment();
    EXPECT_EQ(
        profile(),
        QByteArray("[SCENARIODATA]\r\nTITLE=Left alone\r\nSTART_TIME=12:30\r\nSTART_TIME_HOUR=12\r\n"
                   "START_TIME_MINUTE=30\r\nSUNRISE=06:30\r\nSUNSET=19:30\r\nSUNRISE_HOUR=6\r\n"
                   "SUNRISE_MINUTE=30\r\nSUNSET_HOUR=19\r\nSUNSET_MINUTE=30\r\nMONTH=January\r\nYEAR=1939\r\n"
                   "AIR_SUPERIORITY=2\r\nLOCATION=North Atlantic\r\nVISIBILITY=100\r\nRADARCONDITIONS=100\r\n"
                   "WIND_SPEED=1\r\nWIND_DIRECTION=360\r\nMOONPHASE=None\r\nSEASTATE=1\r\nGAMELENGTH=2:00\r\n"
                   "GAMELENGTH_HOUR=2\r\nGAMELENGTH_MINUTE=00\r\nRAIN=0\r\n"));
    EXPECT_FALSE(enviro().isVisible());
    EXPECT_TRUE(overview().isInputEnabled());
}

TEST_F(EnvironmentWindow, OkStoresWhatEveryControlShows)
{
    openFresh(Language::German);
    pick(envList("ComboMonth"), "März");
    pick(envList("ComboYear"), "1942");
    pick(envList("ComboLocation"), "Südpazifik");
    pick(envList("ComboAirSup"), "Streitkraft B");
    pick(envList("cmbRain"), "Ein");
    retype(envBox("TxtWindSpd"), QStringLiteral("12"));
    retype(envBox("TxtWindDir"), QStringLiteral("45"));
    clickTimes(envButton("Command3"), 2);
    clickTimes(envButton("Command4"), 3);
    clickTimes(envButton("cmdGameLenMin"), 1);
    acceptEnvironment();
    EXPECT_EQ(stored("MONTH"), QStringLiteral("March"));
    EXPECT_EQ(stored("YEAR"), QStringLiteral("1942"));
    EXPECT_EQ(stored("LOCATION"), QStringLiteral("South Pacific"));
    EXPECT_EQ(stored("AIR_SUPERIORITY"), QStringLiteral("5"));
    EXPECT_EQ(stored("RAIN"), QStringLiteral("1"));
    EXPECT_EQ(stored("WIND_SPEED"), QStringLiteral("12"));
    EXPECT_EQ(stored("SEASTATE"), QStringLiteral("4"));
    EXPECT_EQ(stored("WIND_DIRECTION"), QStringLiteral("45"));
    EXPECT_EQ(stored("VISIBILITY"), QStringLiteral("98"));
    EXPECT_EQ(stored("RADARCONDITIONS"), QStringLiteral("97"));
    EXPECT_EQ(stored("GAMELENGTH"), QStringLiteral("2.25"));
    EXPECT_EQ(stored("GAMELENGTH_HOUR"), QStringLiteral("2"));
    EXPECT_EQ(stored("GAMELENGTH_MINUTE"), QStringLiteral("15"));
}

TEST_F(EnvironmentWindow, ForceBStores5AndContestedStores4)
{
    openFresh();
    pick(envList("ComboAirSup"), "Force B");
    acceptEnvironment();
    EXPECT_EQ(stored("AIR_SUPERIORITY"), QStringLiteral("5"));
    openEnvironment();
    EXPECT_EQ(envList("ComboAirSup")->currentText(), QStringLiteral("Force B"));
    pick(envList("ComboAirSup"), "Contested");
    acceptEnvironment();
    EXPECT_EQ(stored("AIR_SUPERIORITY"), QStringLiteral("4"));
}

TEST_F(EnvironmentWindow, GermanLoadsMarchAsMaerz)
{
    openFresh(Language::German);
    acceptEnvironment();
    store("MONTH", "March");
    openEnvironment();
    EXPECT_EQ(envList("ComboMonth")->currentText(), QStringLiteral("März"));
}

TEST_F(EnvironmentWindow, ASunriseAtFivePastSixStoresTheMinuteAs5)
{
    openNew();
    store("SUNRISE", "06:04");
    openEnvironment();
    click(envButton("cmdSunriseMin"));
    EXPECT_EQ(envLabel("TxtSunrise")->text(), QStringLiteral("06:05"));
    acceptEnvironment();
    EXPECT_EQ(stored("SUNRISE"), QStringLiteral("06:05"));
    EXPECT_EQ(stored("SUNRISE_MINUTE"), QStringLiteral("5"));
    EXPECT_EQ(stored("SUNRISE_HOUR"), QStringLiteral("6"));
}

TEST_F(EnvironmentWindow, ALengthWithAColonAndOneWithAPointAreBothTaken)
{
    openNew();
    for (const char* length : {"2:00", "2.00"}) {
        store("GAMELENGTH", length);
        openEnvironment();
        EXPECT_EQ(envLabel("TxtGameLen")->text(), QLatin1StringView(length));
        acceptEnvironment();
        EXPECT_EQ(stored("GAMELENGTH"), QLatin1StringView(length));
        EXPECT_EQ(stored("GAMELENGTH_HOUR"), QStringLiteral("2"));
        EXPECT_EQ(stored("GAMELENGTH_MINUTE"), QStringLiteral("00"));
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(EnvironmentWindow, CancelWritesNothingAndTheNextOpeningShowsTheProfile)
{
    openFresh();
    const QByteArray before = profile();
    retype(envBox("TxtWindSpd"), QStringLiteral("30"));
    click(envButton("cmdHours"));
    pick(envList("ComboYear"), "1944");
    cancelEnvironment();
    EXPECT_FALSE(enviro().isVisible());
    EXPECT_TRUE(overview().isInputEnabled());
    EXPECT_EQ(profile(), before);
    openEnvironment();
    EXPECT_EQ(envBox("TxtWindSpd")->text(), QStringLiteral("1"));
    EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("12:30"));
    EXPECT_EQ(envList("ComboYear")->currentText(), QStringLiteral("1939"));
}

TEST_F(EnvironmentWindow, TheCloseBoxAndEscCancelWhereverTheFocusIs)
{
    openFresh();
    const QByteArray before = profile();
    retype(envBox("TxtWindSpd"), QStringLiteral("30"));
    closeBox(&enviro());
    EXPECT_FALSE(enviro().isVisible());
    EXPECT_TRUE(overview().isInputEnabled());
    EXPECT_EQ(profile(), before);
    for (QWidget* focus :
         {static_cast<QWidget*>(envBox("TxtWindDir")), static_cast<QWidget*>(envList("ComboYear")),
          static_cast<QWidget*>(envButton("cmdHours")), static_cast<QWidget*>(envBox("TxtVis"))}) {
        openEnvironment();
        retype(envBox("TxtWindSpd"), QStringLiteral("30"));
        press(focus, Qt::Key_Escape);
        EXPECT_FALSE(enviro().isVisible()) << focus->objectName().toStdString();
        EXPECT_EQ(profile(), before);
    }
}

TEST_F(EnvironmentWindow, EnterPressesOkButOnCancelCancel)
{
    openFresh();
    for (const char* name : {"TxtWindSpd", "TxtWindDir", "TxtVis", "TxtRadar"}) {
        press(envBox(name), Qt::Key_Return);
        EXPECT_FALSE(enviro().isVisible()) << name;
        openEnvironment();
    }
    retype(envBox("TxtWindSpd"), QStringLiteral("20"));
    press(envButton("cmdHours"), Qt::Key_Enter);
    EXPECT_EQ(stored("WIND_SPEED"), QStringLiteral("20")) << "a stepper is pressed by the space bar";
    EXPECT_EQ(stored("START_TIME"), QStringLiteral("12:30"));
    openEnvironment();
    retype(envBox("TxtWindSpd"), QStringLiteral("30"));
    envButton("CmdCancel")->setFocus();
    press(envButton("CmdCancel"), Qt::Key_Return);
    EXPECT_FALSE(enviro().isVisible());
    EXPECT_EQ(stored("WIND_SPEED"), QStringLiteral("20"));
}

TEST_F(EnvironmentWindow, KeepsTheStoredMoonAndOffersNoControlForIt)
{
    openNew();
    store("MOONPHASE", "Three Quarters");
    openEnvironment();
    EXPECT_EQ(envList("ComboMoon")->currentText(), QStringLiteral("Three Quarters"));
    acceptEnvironment();
    EXPECT_EQ(stored("MOONPHASE"), QStringLiteral("Three Quarters"));
}

} // namespace
} // namespace torvane::testing
