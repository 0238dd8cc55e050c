#include "catalogue_fixture.h"

namespace torvane::testing {
namespace {

class Browser : public ShipListsFixture
{
protected:
    ShipBrowser& open(const QList<TestShip>& ships)
    {
        browser.setLists(listsOf(ships));
        return browser;
    }
    /// Two ships of each navy, out of order.
    ShipBrowser& openFour()
    {
        QList<TestShip> ships;
        for (const char* navy : {"RN", "USN", "KM", "IJN"}) {
            ships.append({"DD", navy + QString(" b"), "K", navy, "20"});
            ships.append({"BB", navy + QString(" a"), "K", navy, "100"});
        }
        return open(ships);
    }

    ShipBrowser browser;
};

TEST_F(Browser, ShowsNothingBeforeTheFirstFill)
{
    EXPECT_FALSE(ShipBrowser().hasLists());
    openFour();
    EXPECT_TRUE(browser.hasLists());
    EXPECT_EQ(browser.rowCount(), 0);
    EXPECT_EQ(browser.currentNavy(), "");
}

TEST_F(Browser, FollowsTheForcesNavyInEachLanguage)
{
    openFour();
    const struct
    {
        const char* force;
        const char* navy;
    } forces[] = {{"Kriegsmarine (KM)", "KM"},
                  {"United States Navy (USN)", "USN"},
                  {"Imperial Japanese Navy (IJN)", "IJN"},
                  {"Royal Navy (RN)", "RN"}};
    for (const auto& [force, navy] : forces) {
        const ListedNavy* found = browser.selectForceNavy(QString(force), Language::English);
        ASSERT_TRUE(found) << force;
        EXPECT_EQ(found->code, QLatin1StringView(navy));
        EXPECT_EQ(browser.currentNavy(), navy);
        EXPECT_EQ(shownNames(browser), QStringList({navy + QString(" b"), navy + QString(" a")}));
    }
    EXPECT_TRUE(browser.selectForceNavy(u"Japanische Marine (IJN)", Language::German));
    EXPECT_EQ(browser.currentNavy(), "IJN");
}

TEST_F(Browser, StaysAsItIsForAForceOfNoNavy)
{
    openFour();
    browser.filterNavy("KM");
    browser.mark(0);
    for (const QString& force : {QString(), QString("INVALID"), QString("Royal Navy"), QString("KM"),
                                 QString("Japanische Marine (IJN)")}) {
        EXPECT_FALSE(browser.selectForceNavy(force, Language::English)) << force.toStdString();
    }
    EXPECT_EQ(browser.currentNavy(), "KM");
    EXPECT_EQ(markedNames(browser), QStringList({"KM b"}));
}

TEST_F(Browser, ShowsTheFieldsOfARowBehindItsMark)
{
    openFour();
    browser.filterNavy("RN");
    const struct
    {
        ShipColumn column;
        const char* text;
    } cells[] = {{ShipColumn::Selected, ""},
                 {ShipColumn::Type, "BB"},
                 {ShipColumn::Name, "RN a"},
                 {ShipColumn::Class, "K"},
                 {ShipColumn::Navy, "RN"},
                 {ShipColumn::HitPts, "100"},
                 {ShipColumn::FloatPts, "float points"},
                 {ShipColumn::Torps, "torpedoes"},
                 {ShipColumn::ShortName, "short RN a"}};
    for (const auto& [column, text] : cells) {
        EXPECT_EQ(browser.text(1, column), text);
    }
    browser.mark(1);
    EXPECT_EQ(browser.text(1, ShipColumn::Selected), "  *   --->");
    EXPECT_EQ(browser.text(0, ShipColumn::Selected), "");
}

TEST_F(Browser, KeepsTheOrderOfASortThroughOtherFilters)
{
    openFour();
    browser.filterNavy("RN");
    browser.sortShips(ShipColumn::Name);
    browser.filterNavy("KM");
    EXPECT_EQ(shownNames(browser), QStringList({"KM b", "KM a"}));
    browser.filterNavy("RN");
    EXPECT_EQ(shownNames(browser), QStringList({"RN a", "RN b"}));
}

TEST_F(Browser, TakesTheMarksAwayWithEachFill)
{
    openFour();
    browser.filterNavy("RN");
    browser.mark(0);
    browser.sortShips(ShipColumn::HitPts);
    EXPECT_EQ(markedNames(browser), QStringList());
    browser.mark(0);
    browser.filterNavy("RN");
    EXPECT_EQ(markedNames(browser), QStringList());
}

TEST_F(Browser, MarksTheShipsOfTheScenarioThatItShows)
{
    openFour();
    browser.filterNavy("USN");
    browser.markSelectedShips({"", "RN a", "USN a", "usn b", "Nobody"});
    EXPECT_EQ(markedNames(browser), QStringList({"USN a"}));
    browser.filterNavy("RN");
    browser.markSelectedShips({"", "RN a", "USN a"});
    EXPECT_EQ(markedNames(browser), QStringList({"RN a"}));
}

TEST_F(Browser, MarksTheFirstOfTwoShipsOfOneName)
{
    open({{"DD", "a", "K1"}, {"DD", "a", "K2"}});
    browser.filterNavy("RN");
    browser.markSelectedShips({"a", "a"});
    EXPECT_TRUE(browser.isMarked(0));
    EXPECT_FALSE(browser.isMarked(1));
}

TEST_F(Browser, MarksNamesWhereverTheyStand)
{
    open(shipsOf("RN", 424));
    browser.filterNavy("RN");
    browser.markSelectedShips({"RN 424", "RN 1", "RN 200"});
    EXPECT_EQ(markedNames(browser), QStringList({"RN 1", "RN 200", "RN 424"}));
}

TEST_F(Browser, TakesAMarkAwayByTheNameInAnyCase)
{
    openFour();
    browser.filterNavy("RN");
    browser.markSelectedShips({"RN a", "RN b"});
    EXPECT_TRUE(browser.unmark(" rn A ", 424));
    EXPECT_EQ(markedNames(browser), QStringList({"RN b"}));
    EXPECT_FALSE(browser.unmark("Nobody", 424));
}

TEST_F(Browser, TakesNoMarkAwayBeyondTheRowsThatItLooksThrough)
{
    openFour();
    browser.filterNavy("RN");
    browser.markSelectedShips({"RN a"});
    EXPECT_FALSE(browser.unmark("RN a", 1));
    EXPECT_EQ(markedNames(browser), QStringList({"RN a"}));
    EXPECT_TRUE(browser.unmark("RN a", 2));
}

TEST_F(Browser, SortsAndShowsAllBeforeANavyWasChosen)
{
    openFour();
    browser.sortShips(ShipColumn::Name);
    EXPECT_EQ(shownNames(browser),
              QStringList({"IJN a", "IJN b", "KM a", "KM b", "RN a", "RN b", "USN a", "USN b"}));
    EXPECT_EQ(browser.currentNavy(), "");
    browser.sortShips(ShipColumn::HitPts);
    browser.filterNavy("KM");
    EXPECT_EQ(shownNames(browser), QStringList({"KM a", "KM b"}));
}

TEST_F(Browser, APressOnTheHeadersSortsByTheCurrentColumnAndShowsAll)
{
    openFour();
    browser.filterNavy("RN");
    browser.pressHeaderRow(ShipColumn::Name);
    EXPECT_EQ(browser.rowCount(), 8);
    EXPECT_EQ(browser.currentNavy(), "RN");
    EXPECT_EQ(browser.text(0, ShipColumn::Name), "RN b");
    browser.filterNavy("RN");
    EXPECT_EQ(shownNames(browser), QStringList({"RN a", "RN b"}));
}

TEST_F(Browser, APressOnTheHeadersWithTheCurrentColumnAtTheFirstIsAnIndexFailure)
{
    openFour();
    browser.filterNavy("RN");
    expectError(
        RuntimeError::SubscriptOutOfRange, [this] { browser.pressHeaderRow(ShipColumn::Selected); },
        ::testing::_);
    EXPECT_EQ(shownNames(browser), QStringList({"RN b", "RN a"}));
}

TEST_F(Browser, SearchesTheListOfTheFilter)
{
    openFour();
    browser.filterNavy("KM");
    EXPECT_EQ(browser.find("km b "), 0);
    EXPECT_EQ(browser.find("RN b"), std::nullopt);
}

} // namespace
} // namespace torvane::testing
