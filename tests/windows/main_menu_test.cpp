#include "shell/main_menu.h"

#include "platform/runtime_error.h"
#include "shell/commands.h"
#include "store/side.h"
#include "support/printers.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

class Menus : public ::testing::Test
{
protected:
    QAction& at(const char* name) { return *menu.action(QLatin1StringView(name)); }
    QString text(const char* name) { return at(name).text(); }

    QMenuBar bar;
    MainMenu menu{&bar};
};

TEST_F(Menus, EveryEntryIsFoundByItsDesignName)
{
    for (const MenuRow& row : menuRows()) {
        const QAction* action = menu.action(row.name);
        EXPECT_EQ(action->objectName(), row.name);
        if (row.visible) {
            EXPECT_EQ(action->isEnabled(), row.enabled) << row.name.toStdString();
        }
        EXPECT_EQ(action->isVisible(), row.visible) << row.name.toStdString();
        if (row.kind == MenuRow::Kind::Menu) {
            EXPECT_EQ(bar.findChild<QMenu*>(row.name), action->menu<QMenu*>());
        }
        EXPECT_EQ(action->isSeparator(), row.kind == MenuRow::Kind::Separator);
    }
}

TEST_F(Menus, EntriesStandInTheirMenusInOrder)
{
    QStringList names;
    for (const QAction* action : at("File").menu<QMenu*>()->actions()) {
        names.append(action->objectName());
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')),
              QStringLiteral("mnuNew mnuLoad mnuSave mnuSaveAs mnuSeperator1 mnuExit"));
}

TEST_F(Menus, AnUnknownNameIsASubscriptError)
{
    try {
        menu.action(QStringLiteral("mnuNothing"));
        FAIL() << "found";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::SubscriptOutOfRange);
        EXPECT_THAT(error.text().toStdString(), ::testing::HasSubstr("mnuNothing"));
    }
}

TEST_F(Menus, GermanLeavesItsGapsEnglish)
{
    menu.setCaptions(Language::German);
    EXPECT_EQ(text("mnuSaveAs"), QStringLiteral("Save &As"));
    for (const char* name : {"mnuForceA5", "mnuForceB5", "mnuDiv9", "mnuDiv11"}) {
        EXPECT_EQ(text(name), QStringLiteral("Division 5")) << name;
    }
    for (const char* name : {"mnuForceA6", "mnuForceB6", "mnuDiv10", "mnuDiv12"}) {
        EXPECT_EQ(text(name), QStringLiteral("Division 6")) << name;
    }
    EXPECT_EQ(text("mnuEditShipADiv5"), QStringLiteral("Div 5"));
    EXPECT_EQ(text("mnuEditShipBDiv6"), QStringLiteral("Div 6"));
    EXPECT_EQ(text("mnuDiv5Ship1"), QStringLiteral("Ship 1"));
    EXPECT_EQ(text("mnuDiv6BShip9"), QStringLiteral("Ship 9"));
    EXPECT_EQ(text("mnuDiv1BShip10"), QStringLiteral("shi10"));
}

TEST_F(Menus, EveryCaptionOfALanguageIsApplied)
{
    for (const Language language : {Language::English, Language::German}) {
        QMenuBar ownBar;
        MainMenu own(&ownBar);
        own.setCaptions(language);
        for (const MenuRow& row : menuRows()) {
            if (row.kind == MenuRow::Kind::Separator) {
                continue;
            }
            const QString& caption = language == Language::German ? row.germanCaption : row.englishCaption;
            EXPECT_EQ(own.action(row.name)->text(), caption.isNull() ? row.designCaption : caption);
        }
    }
}

TEST_F(Menus, ResetShowsTheFirstDivisionsAloneAndGreysTheirMenus)
{
    for (const MenuRow& row : menuRows()) {
        menu.setVisible(row.name, row.name != QLatin1StringView("mnuForceA1") &&
                                      row.name != QLatin1StringView("mnuDiv5"));
        menu.setEnabled(row.name, true);
    }
    menu.addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
    menu.addRepositionMenuEntry(QString(), QStringLiteral("Red"));
    menu.resetForceMenus();
    const QStringList visible =
        QStringLiteral("mnuForceA1 mnuDiv1 mnuForceB1 mnuDiv5").split(QLatin1Char(' '));
    const QStringList hidden =
        QStringLiteral(
            "mnuForceA2 mnuForceA3 mnuForceA4 mnuForceA5 mnuForceA6 mnuForceB2 mnuForceB3 mnuForceB4 "
            "mnuForceB5 mnuForceB6 mnuDiv2 mnuDiv3 mnuDiv4 mnuDiv6 mnuDiv7 mnuDiv8 mnuDiv9 mnuDiv10 "
            "mnuDiv11 mnuDiv12")
            .split(QLatin1Char(' '));
    for (const QString& name : visible) {
        EXPECT_TRUE(menu.action(name)->isVisible()) << name.toStdString();
    }
    for (const QString& name : hidden) {
        EXPECT_FALSE(menu.action(name)->isVisible()) << name.toStdString();
    }
    for (const char* name : {"editForceA", "editForceB", "mnuRepoForceA", "mnuRepoForceB"}) {
        EXPECT_FALSE(at(name).isEnabled()) << name;
    }
    EXPECT_TRUE(at("mnuCreateForceA").isEnabled()) << "others stay";
    EXPECT_TRUE(at("mnuSeperator3").isVisible()) << "others stay";
    EXPECT_EQ(menu.blueDivisionCount(), 0);
    EXPECT_EQ(menu.redDivisionCount(), 0);
}

TEST_F(Menus, RepositionEntriesAreCaptionedAndCountedBySide)
{
    menu.setCaptions(Language::German);
    EXPECT_EQ(text("mnuDiv6"), QStringLiteral("Verband 6"));
    menu.addRepositionMenuEntry(QStringLiteral("any"), QStringLiteral("Red"));
    menu.addRepositionMenuEntry(QStringLiteral("name"), QStringLiteral("Red"));
    EXPECT_EQ(text("mnuDiv5"), QStringLiteral("Verband 1"));
    EXPECT_EQ(text("mnuDiv6"), QStringLiteral("Verband 2"));
    EXPECT_TRUE(at("mnuDiv6").isVisible());
    EXPECT_FALSE(at("mnuDiv7").isVisible());
    EXPECT_EQ(menu.redDivisionCount(), 2);
    EXPECT_EQ(menu.blueDivisionCount(), 0);
}

TEST_F(Menus, TheSeparatorComesWithTheFirstDivisionOfForceB)
{
    menu.addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
    EXPECT_FALSE(at("mnuSeperator3").isVisible());
    menu.addRepositionMenuEntry(QString(), QStringLiteral("Red"));
    EXPECT_TRUE(at("mnuSeperator3").isVisible());
}

TEST_F(Menus, RepositionEntriesFiveAndSixAreTheLateOnes)
{
    menu.setCaptions(Language::English);
    for (int i = 0; i < 6; ++i) {
        menu.addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
    }
    for (const char* name : {"mnuDiv1", "mnuDiv2", "mnuDiv3", "mnuDiv4", "mnuDiv9", "mnuDiv10"}) {
        EXPECT_TRUE(at(name).isVisible()) << name;
    }
    EXPECT_EQ(text("mnuDiv10"), QStringLiteral("Division 6"));
    EXPECT_FALSE(at("mnuDiv6").isVisible());
}

TEST_F(Menus, ASeventhDivisionHasNoEntryAndDoesNoHarm)
{
    for (int i = 0; i < 7; ++i) {
        menu.addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
    }
    EXPECT_EQ(menu.blueDivisionCount(), 7);
}

TEST_F(Menus, TheNewestDivisionOfEachSideShowsItsPairOfEntries)
{
    const std::array<std::array<const char*, 2>, 6> forceA{{{"mnuDiv1", "mnuForceA1"},
                                                            {"mnuDiv2", "mnuForceA2"},
                                                            {"mnuDiv3", "mnuForceA3"},
                                                            {"mnuDiv4", "mnuForceA4"},
                                                            {"mnuDiv9", "mnuForceA5"},
                                                            {"mnuDiv10", "mnuForceA6"}}};
    const std::array<std::array<const char*, 2>, 6> forceB{{{"mnuDiv5", "mnuForceB1"},
                                                            {"mnuDiv6", "mnuForceB2"},
                                                            {"mnuDiv7", "mnuForceB3"},
                                                            {"mnuDiv8", "mnuForceB4"},
                                                            {"mnuDiv11", "mnuForceB5"},
                                                            {"mnuDiv12", "mnuForceB6"}}};
    for (int count = 1; count <= 6; ++count) {
        for (const auto& entries : {forceA, forceB}) {
            for (const auto& pair : entries) {
                at(pair[0]).setVisible(false);
                at(pair[1]).setVisible(false);
            }
        }
        at("mnuSeperator3").setVisible(false);
        const auto index = static_cast<std::size_t>(count - 1);
        menu.enableForceMenus(count, 0);
        EXPECT_TRUE(at(forceA.at(index)[0]).isVisible()) << count;
        EXPECT_TRUE(at(forceA.at(index)[1]).isVisible()) << count;
        EXPECT_FALSE(at(forceB.at(index)[0]).isVisible()) << count;
        EXPECT_FALSE(at("mnuSeperator3").isVisible());
        menu.enableForceMenus(0, count);
        EXPECT_TRUE(at(forceB.at(index)[0]).isVisible()) << count;
        EXPECT_TRUE(at(forceB.at(index)[1]).isVisible()) << count;
        EXPECT_EQ(at("mnuSeperator3").isVisible(), count == 1);
    }
    menu.enableForceMenus(7, 7); // refused elsewhere; no harm here
}

TEST_F(Menus, APlotHidesTheShipsOfDivisionsOneToFourButTheFirst)
{
    for (const MenuRow& row : menuRows()) {
        menu.setVisible(row.name, true);
        menu.setEnabled(row.name, true);
    }
    menu.hideEditShipMenus();
    for (const bool forceA : {true, false}) {
        EXPECT_FALSE(at(forceA ? "mnuEditShipForceA" : "mnuEditShipForceB").isEnabled());
        for (int division = 1; division <= 6; ++division) {
            EXPECT_EQ(menu.action(shipDivisionName(forceA, division))->isVisible(), division > 4);
            for (int ship = 1; ship <= shipEntries(division); ++ship) {
                EXPECT_EQ(menu.action(shipEntryName(forceA, division, ship))->isVisible(),
                          division > 4 || ship == 1)
                    << division << '/' << ship;
            }
        }
    }
}

TEST_F(Menus, AShipOfADivisionWithoutAPlaceOpensItsForceAndShowsNothing)
{
    menu.hideEditShipMenus();
    menu.showEditShips(
        {{.side = Side::Red, .division = 0, .ship = 2, .caption = QStringLiteral("DD Cossack")}});
    EXPECT_TRUE(at("mnuEditShipForceB").isEnabled());
    EXPECT_FALSE(at("mnuEditShipForceA").isEnabled());
    for (const bool forceA : {true, false}) {
        for (int division = 1; division <= 6; ++division) {
            EXPECT_FALSE(menu.action(shipDivisionName(forceA, division))->isVisible()) << division;
            for (int ship = 1; ship <= shipEntries(division); ++ship) {
                const QAction* entry = menu.action(shipEntryName(forceA, division, ship));
                EXPECT_EQ(entry->isVisible(), division <= 4 && ship == 1) << division << '/' << ship;
                EXPECT_NE(entry->text(), QStringLiteral("DD Cossack"));
            }
        }
    }
}

TEST_F(Menus, EditShipEntriesOfDivisionsFiveAndSixOutlastAReset)
{
    std::vector<EditShipEntry> ships;
    for (const Side side : {Side::Blue, Side::Red}) {
        for (const int division : {4, 5, 6}) {
            ships.push_back(
                {.side = side, .division = division, .ship = 2, .caption = QStringLiteral("DD Cossack")});
        }
    }
    menu.showEditShips(ships);
    menu.resetForceMenus();
    menu.hideEditShipMenus();
    for (const bool forceA : {true, false}) {
        for (const int division : {4, 5, 6}) {
            EXPECT_EQ(menu.action(shipDivisionName(forceA, division))->isVisible(), division > 4);
            EXPECT_EQ(menu.action(shipEntryName(forceA, division, 2))->isVisible(), division > 4);
        }
    }
}

} // namespace
} // namespace torvane::testing
