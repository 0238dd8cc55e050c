#include "divisions/create_division_frm.h"
#include "overview_fixture.h"
#include "shell/main_menu.h"

#include <QAction>

namespace torvane::testing {
namespace {

class OverviewWindow : public Dialogs
{
protected:
    QAction* entry(const char* name) { return main().menu().action(QLatin1StringView(name)); }
};

// A second click can come ahead of the activation that the first one brings.
TEST_F(OverviewWindow, LeftRightBehindTheEnvironmentItIsStillFreshForTheNextNew)
{
    openNew();
    saveOverview();
    reopenOverview();
    openEnvironment();
    envButton("cmdOK")->click();
    button("cmdOK")->click();
    settle();
    ASSERT_TRUE(main().isInputEnabled());
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    EXPECT_FALSE(button("CmdCancel")->isEnabled());
}

struct Caption
{
    const char* control;
    const char* english;
    const char* german;
};

TEST_F(OverviewWindow, EveryCaptionIsThatOfTheLanguage)
{
    const Caption captions[] = {
        {"Label1", "Title:", "Titel:"},
        {"Label2", "Description:", "Beschreibung:"},
        {"Label6", "Mission:", "Einsatz:"},
        {"Label22", "Force A's Navy:", "Streitkraft A"},
        {"Label24", "Force B's Navy:", "Streitkraft B"},
        {"lblMissionA", "BATTLELINE", "Schlachtreihe"},
        {"lblMissionB", "BATTLELINE", "Schlachtreihe"},
        {"Label4", " Force A Mission Objective:", "Einsatzziele Streitkraft A"},
        {"Label3", " Force B Mission Objective:", "Einsatzziele Streitkraft B"},
        {"Label5", "Disengage Heading:", "Rückzugsrichtung:"},
        {"Label19", "Disengage Heading:", "Rückzugsrichtung:"},
        {"Label26", "VP  Mods:", "SP-Modifikator"},
        {"Label25", "VP  Mods:", "SP-Modifikator"},
        {"lblMovie", "Movie:", "Film:"},
    };
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        for (const Caption& row : captions) {
            const char* wanted = language == Language::German ? row.german : row.english;
            EXPECT_EQ(plain(label(row.control)->text()), QString::fromUtf8(wanted)) << row.control;
            EXPECT_TRUE(label(row.control)->isVisible()) << row.control;
        }
    }
}

TEST_F(OverviewWindow, EachForcesRoleStandsOnItsColour)
{
    openNew();
    for (const auto& [name, color] :
         {std::pair{"lblMissionA", QColor(36, 74, 150)}, {"lblMissionB", QColor(164, 38, 38)}}) {
        EXPECT_TRUE(label(name)->autoFillBackground()) << name;
        EXPECT_EQ(label(name)->palette().color(QPalette::Window), color) << name;
    }
}

TEST_F(OverviewWindow, TitleBarAndButtonsStandExactlyAsLaidDown)
{
    openNew(Language::English);
    EXPECT_EQ(overview().windowTitle(), QStringLiteral("Torvane - Overview of the Scenario"));
    EXPECT_EQ(button("cmdEnviroCntrl")->text(), QStringLiteral("Environmental Controls"));
    EXPECT_EQ(button("cmdOK")->text(), QStringLiteral("&Save"));
    EXPECT_EQ(button("CmdCancel")->text(), QStringLiteral("&Cancel"));
    openNew(Language::German);
    EXPECT_EQ(overview().windowTitle(), QStringLiteral("Torvane - Scenario Editor"));
    EXPECT_EQ(button("cmdEnviroCntrl")->text(), QStringLiteral("Umwelt"));
    EXPECT_EQ(button("cmdOK")->text(), QStringLiteral("OK"));
    EXPECT_EQ(button("CmdCancel")->text(), QStringLiteral("Abbrechen"));
}

TEST_F(OverviewWindow, EveryListHoldsItsEntriesInOrder)
{
    const QStringList movies{QStringLiteral("None - 0"), QStringLiteral("Barents Sea  - 1"),
                             QStringLiteral("Denmark - 2"), QStringLiteral("Guadalcanal  - 3"),
                             QStringLiteral("River Plate - 4")};
    openNew(Language::English);
    EXPECT_EQ(entries(list("cmbMission")).join(u'|'),
              QStringLiteral("Meeting Engagement|Intercept|Bombardment|Convoy|Tactical Transport"));
    for (const char* navy : {"CmbBlueSide", "CmbRedSide"}) {
        EXPECT_EQ(entries(list(navy)).join(u'|'),
                  QStringLiteral("Kriegsmarine (KM)|United States Navy (USN)|Imperial Japanese Navy (IJN)|"
                                 "Royal Navy (RN)"));
    }
    EXPECT_EQ(entries(list("cmbMovie")), movies);
    openNew(Language::German);
    EXPECT_EQ(entries(list("cmbMission")).join(u'|'),
              QStringLiteral("Begegnungsgefecht|Abfangen|Bombardieren|Konvoi|Taktischer Transport"));
    for (const char* navy : {"CmbBlueSide", "CmbRedSide"}) {
        EXPECT_EQ(entries(list(navy)).join(u'|'),
                  QStringLiteral("Kriegsmarine (KM)|United States Navy (USN)|Japanische Marine (IJN)|"
                                 "Royal Navy (RN)"));
    }
    EXPECT_EQ(entries(list("cmbMovie")), movies) << "the list is the same in both languages";
}

TEST_F(OverviewWindow, ANewScenarioShowsItsDefaults)
{
    for (const Language language : {Language::English, Language::German}) {
        const bool german = language == Language::German;
        openNew(language);
        EXPECT_EQ(box("TxtTitle")->text(), german ? QStringLiteral("Titel") : QStringLiteral("Title"));
        EXPECT_EQ(description()->toPlainText(), german ? QStringLiteral("Keine") : QStringLiteral("None"));
        EXPECT_EQ(list("cmbMission")->currentIndex(), 0);
        EXPECT_EQ(list("CmbBlueSide")->currentText(), QStringLiteral("Kriegsmarine (KM)"));
        EXPECT_EQ(list("CmbRedSide")->currentText(), QStringLiteral("Royal Navy (RN)"));
        EXPECT_EQ(list("cmbMovie")->shownText(),
                  german ? QStringLiteral("Keine - 0") : QStringLiteral("None - 0"));
        EXPECT_EQ(box("txtDisengageA")->text(), QStringLiteral("180"));
        EXPECT_EQ(box("txtDisengageB")->text(), QStringLiteral("180"));
        EXPECT_EQ(box("txtVPmodsA")->text(), QStringLiteral("1.00"));
        EXPECT_EQ(box("txtVPmodsB")->text(), QStringLiteral("1.00"));
        EXPECT_EQ(overview().lblForceA->text(),
                  german ? QStringLiteral("Streitkraft A") : QStringLiteral("Force A"));
        EXPECT_EQ(overview().lblForceB->text(),
                  german ? QStringLiteral("Streitkraft B") : QStringLiteral("Force B"));
        EXPECT_FALSE(overview().lblForceA->isVisible());
        EXPECT_FALSE(overview().ChknewFlag->isVisible());
    }
}

QByteArray freshSection(const QByteArray& title, const QByteArray& description)
{
    const QByteArray section =
        "[SCENARIODATA]\r\nTITLE=<title>\r\nDESCRIPTION_LINECNT=1\r\nDESCRIPTION_LINE0=<description>\r\n"
        "START_TIME=12:30\r\nSTART_TIME_HOUR=12\r\nSTART_TIME_MINUTE=30\r\nSUNRISE=06:30\r\nSUNSET=19:30\r\n"
        "SUNRISE_HOUR=6\r\nSUNRISE_MINUTE=30\r\nSUNSET_HOUR=19\r\nSUNSET_MINUTE=30\r\nMONTH=January\r\n"
        "YEAR=1939\r\nBLUEBRIEFING_LINECNT=1\r\nBLUEBRIEFING_LINE0=Unavailable\r\nREDBRIEFING_LINECNT=1\r\n"
        "REDBRIEFING_LINE0=Unavailable\r\nV.CONDITION_BLUE=None\r\nV.CONDITION_RED=None\r\n"
        "AIR_SUPERIORITY=2\r\nLOCATION=North Atlantic\r\nVISIBILITY=100\r\nRADARCONDITIONS=100\r\n"
        "WIND_SPEED=1\r\nWIND_DIRECTION=360\r\nVP_MODS=None\r\nMOONPHASE=None\r\nSEASTATE=1\r\n"
        "GAMELENGTH=2:00\r\nGAMELENGTH_HOUR=2\r\nGAMELENGTH_MINUTE=00\r\nBLUE_NAVY=KM\r\nRED_NAVY=RN\r\n"
        "RAIN=0\r\nDDTRANSPORTS=0\r\nBLUE_TARGETBOX_X=0\r\nBLUE_TARGETBOX_Z=0\r\nBLUE_TARGETBOXDIM=0\r\n"
        "RED_TARGETBOX_X=0\r\nRED_TARGETBOX_Z=0\r\nRED_TARGETBOX_DIM=0\r\nBLUE_DISENGAGE_HEADING=180\r\n"
        "RED_DISENGAGE_HEADING=180\r\nBATTLETYPE=0\r\nBLUE_VICTORY_MODS=1.00\r\nRED_VICTORY_MODS=1.00\r\n"
        "BLUE_FORCE_TYPE=0\r\nRED_FORCE_TYPE=1\r\nMOVIE=0\r\n";
    return QByteArray(section).replace("<title>", title).replace("<description>", description);
}

TEST_F(OverviewWindow, NewWritesThe50KeysInOrderBeforeAnythingIsPressed)
{
    openNew(Language::English);
    EXPECT_EQ(profile(), freshSection("Title", "None"));
    EXPECT_EQ(profile().count('='), 50);
    openNew(Language::German);
    EXPECT_EQ(profile(), freshSection("Titel", "Keine"));
}

TEST_F(OverviewWindow, SavingUnchangedDefaultsWritesTheSameAgain)
{
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        const QByteArray fresh = profile();
        saveOverview();
        EXPECT_EQ(profile(), fresh);
        reopenOverview();
        saveOverview();
        EXPECT_EQ(profile(), fresh);
    }
}

TEST_F(OverviewWindow, ANewScenarioGreysCancelAndSaveEnablesTheForceMenus)
{
    openNew();
    EXPECT_FALSE(button("CmdCancel")->isEnabled());
    EXPECT_FALSE(entry("mnuCreateForceA")->isEnabled());
    EXPECT_FALSE(entry("mnuCreateForceB")->isEnabled());
    setValue(editor().createDivisionFrm().ChknewBlueFlag, 0);
    setValue(editor().createDivisionFrm().ChknewRedFlag, 0);
    saveOverview();
    EXPECT_FALSE(overview().isVisible());
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_EQ(valueOf(overview().ChknewFlag), 0);
    for (const char* name : {"mnuCreateForceA", "mnuCreateForceB"}) {
        EXPECT_TRUE(entry(name)->isEnabled()) << name;
        EXPECT_TRUE(entry(name)->isVisible()) << name;
    }
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewBlueFlag), 1);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewRedFlag), 1);
}

TEST_F(OverviewWindow, TheSecondOpeningHasCancelAndIsFilledFromTheProfile)
{
    openNew();
    saveOverview();
    store("TITLE", "River Plate");
    store("DESCRIPTION_LINE0", "Three cruisers");
    store("BATTLETYPE", "3");
    store("BLUE_NAVY", "RN");
    store("RED_NAVY", "KM");
    store("BLUE_DISENGAGE_HEADING", "90");
    store("RED_DISENGAGE_HEADING", "271");
    store("BLUE_VICTORY_MODS", "1.25");
    store("RED_VICTORY_MODS", "0.5");
    store("MOVIE", "4");
    reopenOverview();
    EXPECT_TRUE(button("CmdCancel")->isEnabled());
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("River Plate"));
    EXPECT_EQ(description()->toPlainText(), QStringLiteral("Three cruisers"));
    EXPECT_EQ(list("cmbMission")->currentText(), QStringLiteral("Intercept"));
    EXPECT_EQ(list("CmbBlueSide")->currentText(), QStringLiteral("Royal Navy (RN)"));
    EXPECT_EQ(list("CmbRedSide")->currentText(), QStringLiteral("Kriegsmarine (KM)"));
    EXPECT_EQ(box("txtDisengageA")->text(), QStringLiteral("90"));
    EXPECT_EQ(box("txtDisengageB")->text(), QStringLiteral("271"));
    EXPECT_EQ(box("txtVPmodsA")->text(), QStringLiteral("1.25"));
    EXPECT_EQ(box("txtVPmodsB")->text(), QStringLiteral("0.5"));
    EXPECT_EQ(list("cmbMovie")->shownText(), QStringLiteral("River Plate - 4"));
}

TEST_F(OverviewWindow, ASecondSaveLeavesTheDivisionDialogsFlagsAlone)
{
    openNew();
    saveOverview();
    setValue(editor().createDivisionFrm().ChknewBlueFlag, 0);
    setValue(editor().createDivisionFrm().ChknewRedFlag, 0);
    reopenOverview();
    saveOverview();
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewBlueFlag), 0);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewRedFlag), 0);
}

TEST_F(OverviewWindow, SaveStoresWhatEveryControlShows)
{
    openNew();
    retype(box("TxtTitle"), QStringLiteral("  North Cape "));
    pick(list("cmbMission"), "Convoy");
    pick(list("CmbBlueSide"), "Imperial Japanese Navy (IJN)");
    pick(list("CmbRedSide"), "United States Navy (USN)");
    pick(list("cmbMovie"), "Barents Sea  - 1");
    retype(box("txtDisengageA"), QStringLiteral("45"));
    retype(box("txtDisengageB"), QStringLiteral("315"));
    retype(box("txtVPmodsA"), QStringLiteral("2.5"));
    retype(box("txtVPmodsB"), QStringLiteral("0.75"));
    saveOverview();
    QByteArray wanted = freshSection("North Cape", "None");
    wanted.replace("BATTLETYPE=0", "BATTLETYPE=2").replace("BLUE_NAVY=KM", "BLUE_NAVY=IJN");
    wanted.replace("RED_NAVY=RN", "RED_NAVY=USN").replace("MOVIE=0", "MOVIE=1");
    wanted.replace("BLUE_DISENGAGE_HEADING=180", "BLUE_DISENGAGE_HEADING=45");
    wanted.replace("RED_DISENGAGE_HEADING=180", "RED_DISENGAGE_HEADING=315");
    wanted.replace("BLUE_VICTORY_MODS=1.00", "BLUE_VICTORY_MODS=2.5");
    wanted.replace("RED_VICTORY_MODS=1.00", "RED_VICTORY_MODS=0.75");
    EXPECT_EQ(profile(), wanted);
}

TEST_F(OverviewWindow, CancelWritesNothingAndTheNextOpeningShowsTheProfile)
{
    openNew();
    saveOverview();
    const QByteArray before = profile();
    reopenOverview();
    retype(box("TxtTitle"), QStringLiteral("Forgotten"));
    pick(list("cmbMission"), "Convoy");
    click(button("CmdCancel"));
    EXPECT_FALSE(overview().isVisible());
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_EQ(profile(), before);
    reopenOverview();
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("Title"));
    EXPECT_EQ(list("cmbMission")->currentText(), QStringLiteral("Meeting Engagement"));
}

TEST_F(OverviewWindow, TheCloseBoxAndEscDoNothingWhileCancelIsGreyed)
{
    openNew();
    closeBox(&overview());
    EXPECT_TRUE(overview().isVisible());
    for (QWidget* focus :
         {static_cast<QWidget*>(box("TxtTitle")), static_cast<QWidget*>(description()),
          static_cast<QWidget*>(list("cmbMission")), static_cast<QWidget*>(button("cmdOK"))}) {
        press(focus, Qt::Key_Escape);
        EXPECT_TRUE(overview().isVisible()) << focus->objectName().toStdString();
    }
    EXPECT_FALSE(main().isInputEnabled());
}

TEST_F(OverviewWindow, OtherwiseTheyCancelWhereverTheFocusIs)
{
    openNew();
    saveOverview();
    const QByteArray before = profile();
    reopenOverview();
    retype(box("TxtTitle"), QStringLiteral("Forgotten"));
    closeBox(&overview());
    EXPECT_FALSE(overview().isVisible());
    EXPECT_TRUE(main().isInputEnabled());
    for (QWidget* focus :
         {static_cast<QWidget*>(box("TxtTitle")), static_cast<QWidget*>(description()),
          static_cast<QWidget*>(list("cmbMission")), static_cast<QWidget*>(button("cmdOK"))}) {
        reopenOverview();
        press(focus, Qt::Key_Escape);
        EXPECT_FALSE(overview().isVisible()) << focus->objectName().toStdString();
        EXPECT_EQ(profile(), before);
    }
}

TEST_F(OverviewWindow, EnterPressesSaveButOnAButtonThatButton)
{
    openNew();
    retype(box("TxtTitle"), QStringLiteral("By Enter"));
    press(box("TxtTitle"), Qt::Key_Return);
    EXPECT_FALSE(overview().isVisible());
    EXPECT_EQ(stored("TITLE"), QStringLiteral("By Enter"));
    reopenOverview();
    retype(box("TxtTitle"), QStringLiteral("Not kept"));
    button("CmdCancel")->setFocus();
    press(button("CmdCancel"), Qt::Key_Return);
    EXPECT_FALSE(overview().isVisible());
    EXPECT_EQ(stored("TITLE"), QStringLiteral("By Enter"));
    reopenOverview();
    button("cmdEnviroCntrl")->setFocus();
    press(button("cmdEnviroCntrl"), Qt::Key_Enter);
    EXPECT_TRUE(enviro().isVisible());
}

} // namespace
} // namespace torvane::testing
