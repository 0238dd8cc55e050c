#include "catalogue_fixture.h"

namespace torvane::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

TEST(ShipGridColumns, AreThoseOfTheTable)
{
    struct Row
    {
        const char* field;
        const char* english;
        const char* german;
        int twips;
    };
    const Row rows[] = {
        {nullptr, "Selected", "Gewählt", 750},
        {"Type", "Type", "Typ", 500},
        {"Name", "Name", "Name", 1700},
        {"Class", "Class", "Klasse", 1350},
        {"Navy", "Navy", "Marine", 500},
        {"HitPts", "HitPts", "Pkt-R", 650},
        {"FloatPts", "FloatPts", "Pkt-W", 650},
        {"Torps?", "Torps?", "Torps?", 650},
        {"ShortName", "ShrtName", "Kurzer Name", 1100},
    };
    ASSERT_EQ(std::size(rows), shipGridColumns.size());
    for (std::size_t i = 0; i < shipGridColumns.size(); ++i) {
        EXPECT_STREQ(shipGridColumns[i].field, rows[i].field) << i;
        EXPECT_STREQ(shipGridColumns[i].header.english, rows[i].english) << i;
        EXPECT_STREQ(shipGridColumns[i].header.german, rows[i].german) << i;
        EXPECT_EQ(shipGridColumns[i].twips, rows[i].twips) << i;
    }
}

TEST(ListedNavies, AreThoseOfTheTables)
{
    struct Row
    {
        const char* code;
        int rows;
        int removalRows;
        const char* english;
        const char* german;
    };
    const Row rows[] = {
        {"RN", 424, 424, "Royal Navy (RN)", "Royal Navy (RN)"},
        {"USN", 399, 399, "United States Navy (USN)", "United States Navy (USN)"},
        {"KM", 198, 129, "Kriegsmarine (KM)", "Kriegsmarine (KM)"},
        {"IJN", 245, 245, "Imperial Japanese Navy (IJN)", "Japanische Marine (IJN)"},
    };
    ASSERT_EQ(std::size(rows), listedNavies.size());
    for (std::size_t i = 0; i < listedNavies.size(); ++i) {
        EXPECT_EQ(listedNavies[i].code, QLatin1StringView(rows[i].code));
        EXPECT_EQ(listedNavies[i].rows, rows[i].rows) << rows[i].code;
        EXPECT_EQ(listedNavies[i].removalRows, rows[i].removalRows) << rows[i].code;
        EXPECT_STREQ(listedNavies[i].force.english, rows[i].english);
        EXPECT_STREQ(listedNavies[i].force.german, rows[i].german);
    }
    EXPECT_EQ(listedShips, 1266);
}

class Lists : public ShipListsFixture
{
};

TEST_F(Lists, HoldEachShipInItsNavyAndInAllInStoredOrder)
{
    const ShipLists ships = listsOf({{"DD", "b", "K", "RN"},
                                     {"DD", "e", "K", "KM"},
                                     {"DD", "a", "K", "RN"},
                                     {"DD", "d", "K", "USN"},
                                     {"DD", "c", "K", "IJN"}});
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"b", "a"}));
    EXPECT_EQ(names(ships.list(u"USN")), QStringList({"d"}));
    EXPECT_EQ(names(ships.list(u"KM")), QStringList({"e"}));
    EXPECT_EQ(names(ships.list(u"IJN")), QStringList({"c"}));
    EXPECT_EQ(names(ships.list(u"")), QStringList({"b", "e", "a", "d", "c"}));
}

TEST_F(Lists, WalkFromTheFirstRowWhereverTheControlStands)
{
    makeCatalogue(shipsOf("RN", 3));
    catalogue.shipToClass("RN 3");
    EXPECT_EQ(names(lists().list(u"RN")), QStringList({"RN 1", "RN 2", "RN 3"}));
}

TEST_F(Lists, HoldTheEightFieldsWithoutSurroundingBlanks)
{
    makeCatalogue({{" DD ", " Ardent ", " A class ", " RN ", " 142 "}});
    const ShipLists ships = lists();
    ASSERT_EQ(ships.list(u"RN").size(), 1U);
    const ShipRow& ship = ships.list(u"RN").front();
    EXPECT_EQ(ship[ShipColumn::Type], "DD");
    EXPECT_EQ(ship[ShipColumn::Name], "Ardent");
    EXPECT_EQ(ship[ShipColumn::Class], "A class");
    EXPECT_EQ(ship[ShipColumn::Navy], "RN");
    EXPECT_EQ(ship[ShipColumn::HitPts], "142");
    EXPECT_EQ(ship[ShipColumn::FloatPts], "float points");
    EXPECT_EQ(ship[ShipColumn::Torps], "torpedoes");
    EXPECT_EQ(ship[ShipColumn::ShortName], "short  Ardent");
}

TEST_F(Lists, HoldAShipOfAnotherNavyAmongAllAlone)
{
    const ShipLists ships = listsOf({{"CL", "De Ruyter", "K", "RNN"}, {"DD", "Ardent", "K", "rn"}});
    EXPECT_EQ(names(ships.list(u"")), QStringList({"De Ruyter", "Ardent"}));
    for (const char* navy : {"RN", "USN", "KM", "IJN"}) {
        EXPECT_TRUE(ships.list(QString(navy)).empty()) << navy;
    }
}

TEST_F(Lists, TakeACatalogueOfFullSize)
{
    const ShipLists ships = listsOf(fullCatalogue());
    EXPECT_EQ(ships.list(u"RN").size(), 424U);
    EXPECT_EQ(ships.list(u"USN").size(), 399U);
    EXPECT_EQ(ships.list(u"KM").size(), 198U);
    EXPECT_EQ(ships.list(u"IJN").size(), 245U);
    EXPECT_EQ(ships.list(u"").size(), 1266U);
}

TEST_F(Lists, FailWithOneShipOfANavyMoreThanItsListTakes)
{
    const struct
    {
        const char* navy;
        int rows;
    } sizes[] = {{"RN", 424}, {"USN", 399}, {"KM", 198}, {"IJN", 245}};
    for (const auto& [navy, rows] : sizes) {
        QFile::remove(catalogueFile());
        makeCatalogue(shipsOf(navy, rows + 1));
        DataControls controls;
        controls.bind(folder());
        ShipCatalogue tooMany(controls);
        expectError(
            RuntimeError::SubscriptOutOfRange, [&] { ShipLists read(tooMany.ShipDataB()); },
            AllOf(HasSubstr(std::string("navy ") + navy), HasSubstr(std::to_string(rows))));
    }
}

TEST_F(Lists, FailWithThe425thShipOfTheRoyalNavyAtTheEndOfAFullCatalogue)
{
    makeCatalogue(fullCatalogue() + QList<TestShip>{{"DD", "One too many"}});
    expectError(
        RuntimeError::SubscriptOutOfRange, [this] { lists(); },
        AllOf(HasSubstr("navy RN"), HasSubstr("424")));
}

TEST_F(Lists, FailWithMoreShipsThanTheListOfAllTakes)
{
    makeCatalogue(fullCatalogue() + shipsOf("Other", 1));
    expectError(
        RuntimeError::SubscriptOutOfRange, [this] { lists(); },
        AllOf(HasSubstr("all navies"), HasSubstr("1266")));
}

TEST_F(Lists, AreEmptyForAnEmptyCatalogue)
{
    const ShipLists ships = listsOf({});
    EXPECT_TRUE(ships.list(u"").empty());
    EXPECT_TRUE(ships.list(u"RN").empty());
}

TEST_F(Lists, FailWithTheFieldThatTheCatalogueLacks)
{
    makeCatalogue({{"DD", "Ardent"}});
    RawDatabase(catalogueFile()).run("ALTER TABLE ShipDataB RENAME COLUMN FloatPts TO Floats");
    expectError(
        RuntimeError::DatabaseFailure, [this] { lists(); },
        AllOf(HasSubstr("FloatPts"), HasSubstr("ShipDataB")));
}

TEST_F(Lists, FailWithoutACatalogue)
{
    expectError(
        RuntimeError::FileNotFound, [this] { lists(); }, HasSubstr("ShipDatabase.mdb"));
}

TEST_F(Lists, FailWithADamagedCatalogue)
{
    QFile file(catalogueFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(5000, 'x'));
    file.close();
    expectError(
        RuntimeError::DatabaseFailure, [this] { lists(); }, HasSubstr("ShipDatabase.mdb"));
}

TEST_F(Lists, SortTextAscendingByCodePoint)
{
    ShipLists ships =
        listsOf({{"DD", "b"}, {"DD", "a"}, {"DD", "B"}, {"DD", "Ä"}, {"DD", "A"}, {"DD", "10"}, {"DD", "9"}});
    ships.sortShips(u"RN", ShipColumn::Name);
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"10", "9", "A", "B", "a", "b", "Ä"}));
}

TEST_F(Lists, SortByTypePutsBattleshipsBeforeDestroyers)
{
    ShipLists ships = listsOf({{"DD", "a"}, {"TR", "b"}, {"BB", "c"}, {"CA", "d"}});
    ships.sortShips(u"RN", ShipColumn::Type);
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"c", "d", "a", "b"}));
}

TEST_F(Lists, SortByHitPointsPutsTheHighestNumberFirst)
{
    ShipLists ships = listsOf({{"DD", "a", "K", "RN", "20"},
                               {"DD", "b", "K", "RN", "100"},
                               {"DD", "c", "K", "RN", ""},
                               {"DD", "d", "K", "RN", "20.5"}});
    ships.sortShips(u"RN", ShipColumn::HitPts);
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"b", "d", "a", "c"}));
}

TEST_F(Lists, SortWholeRows)
{
    ShipLists ships = listsOf({{"DD", "z", "K1", "RN", "7"}, {"BB", "a", "K2", "RN", "9"}});
    ships.sortShips(u"RN", ShipColumn::Name);
    const ShipRow& first = ships.list(u"RN").front();
    EXPECT_EQ(first[ShipColumn::Type], "BB");
    EXPECT_EQ(first[ShipColumn::Class], "K2");
    EXPECT_EQ(first[ShipColumn::HitPts], "9");
    EXPECT_EQ(first[ShipColumn::ShortName], "short a");
}

bool isStronger(const TestShip& ship, const TestShip& other)
{
    return ship.hitPts.toInt() > other.hitPts.toInt();
}
bool hasEarlierType(const TestShip& ship, const TestShip& other)
{
    return ship.type < other.type;
}

/// The exchanges done one by one on whole rows, as an independent statement of the order.
QStringList shellSortedNames(QList<TestShip> ships, bool (*goesAhead)(const TestShip&, const TestShip&))
{
    qsizetype gap = ships.size() / 2;
    while (gap >= 1) {
        bool exchanged = false;
        do {
            exchanged = false;
            for (qsizetype i = 1; i <= ships.size() - gap; ++i) {
                if (goesAhead(ships[i + gap - 1], ships[i - 1])) {
                    ships.swapItemsAt(i - 1, i + gap - 1);
                    exchanged = true;
                }
            }
        } while (exchanged);
        gap /= 2;
    }
    QStringList found;
    for (const TestShip& ship : ships) {
        found.append(ship.name);
    }
    return found;
}

TEST_F(Lists, SortLeavesEqualHitPointsWhereTheGapsBringThem)
{
    // To be followed by hand: gap 2 exchanges "a" and "x", and gap 1 finds nothing to exchange.
    ShipLists few = listsOf({{"DD", "a", "K", "RN", "1"},
                             {"DD", "b", "K", "RN", "1"},
                             {"DD", "x", "K", "RN", "2"},
                             {"DD", "d", "K", "RN", "1"}});
    few.sortShips(u"RN", ShipColumn::HitPts);
    EXPECT_EQ(names(few.list(u"RN")), QStringList({"x", "b", "a", "d"}));
}

TEST_F(Lists, SortOfAFullListIsThatOfTheExchanges)
{
    QList<TestShip> ships = shipsOf("RN", 424);
    for (qsizetype i = 0; i < ships.size(); ++i) {
        ships[i].hitPts = QString::number(i * 37 % 29);
    }
    ShipLists read = listsOf(ships);
    read.sortShips(u"RN", ShipColumn::HitPts);
    EXPECT_EQ(names(read.list(u"RN")), shellSortedNames(ships, isStronger));
}

TEST_F(Lists, SortByTextLeavesEqualTextsWhereTheGapsBringThem)
{
    const char* const types[] = {"TR", "DD", "CL", "CA", "BC", "BB"};
    QList<TestShip> ships = shipsOf("RN", 424);
    for (qsizetype i = 0; i < ships.size(); ++i) {
        ships[i].type = types[i * 37 % 29 % 6];
    }
    ShipLists read = listsOf(ships);
    read.sortShips(u"RN", ShipColumn::Type);
    const QStringList sorted = names(read.list(u"RN"));
    EXPECT_EQ(sorted, shellSortedNames(ships, hasEarlierType));
    std::stable_sort(ships.begin(), ships.end(), hasEarlierType);
    QStringList stable;
    for (const TestShip& ship : ships) {
        stable.append(ship.name);
    }
    EXPECT_NE(sorted, stable);
}

TEST_F(Lists, SortOneListAlone)
{
    ShipLists ships = listsOf({{"DD", "b"}, {"DD", "a"}, {"DD", "d", "K", "KM"}, {"DD", "c", "K", "KM"}});
    ships.sortShips(u"RN", ShipColumn::Name);
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"a", "b"}));
    EXPECT_EQ(names(ships.list(u"KM")), QStringList({"d", "c"}));
    EXPECT_EQ(names(ships.list(u"")), QStringList({"b", "a", "d", "c"}));
}

TEST_F(Lists, SortOfAllByTextSortsAllAndByHitPointsTheKriegsmarine)
{
    ShipLists ships = listsOf({{"DD", "b", "K", "RN", "1"},
                               {"DD", "d", "K", "KM", "1"},
                               {"DD", "a", "K", "RN", "2"},
                               {"DD", "c", "K", "KM", "2"}});
    ships.sortShips(u"", ShipColumn::HitPts);
    EXPECT_EQ(names(ships.list(u"")), QStringList({"b", "d", "a", "c"}));
    EXPECT_EQ(names(ships.list(u"KM")), QStringList({"c", "d"}));
    ships.sortShips(u"", ShipColumn::Name);
    EXPECT_EQ(names(ships.list(u"")), QStringList({"a", "b", "c", "d"}));
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"b", "a"}));
}

TEST_F(Lists, SortByTheFirstColumnIsAnIndexFailure)
{
    ShipLists ships = listsOf({{"DD", "b"}, {"DD", "a"}});
    expectError(
        RuntimeError::SubscriptOutOfRange, [&] { ships.sortShips(u"RN", ShipColumn::Selected); },
        HasSubstr("column"));
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"b", "a"}));
}

TEST_F(Lists, StayAsTheyWereWhereANumberHasNoBounds)
{
    ShipLists ships = listsOf({{"DD", "b", "K", "RN", "1"}, {"DD", "a", "K", "RN", "1E999"}});
    expectError(
        RuntimeError::Overflow, [&] { ships.sortShips(u"RN", ShipColumn::HitPts); }, ::testing::_);
    EXPECT_EQ(names(ships.list(u"RN")), QStringList({"b", "a"}));
}

TEST_F(Lists, SearchFindsASmallLetteredNameWithABlankBehindIt)
{
    const ShipLists ships = listsOf({{"DD", "Ardent"}, {"BB", "Warspite"}, {"DD", "Zulu"}});
    EXPECT_EQ(ships.find(u"RN", "warspite "), 1);
    EXPECT_EQ(ships.find(u"RN", "ARDENT"), 0);
}

TEST_F(Lists, SearchDoesNotFindTheLastShip)
{
    const ShipLists ships = listsOf({{"DD", "Ardent"}, {"DD", "Zulu"}});
    EXPECT_EQ(ships.find(u"RN", "Zulu"), std::nullopt);
    EXPECT_EQ(ShipLists().find(u"RN", "Zulu"), std::nullopt);
}

TEST_F(Lists, SearchComparesTheWholeName)
{
    const ShipLists ships = listsOf({{"DD", "DD Duncan USN"}, {"DD", "Zulu"}});
    EXPECT_EQ(ships.find(u"RN", "Duncan"), std::nullopt);
    EXPECT_EQ(ships.find(u"RN", "dd duncan usn"), 0);
}

TEST_F(Lists, SearchLooksIntoOneNavyAlone)
{
    const ShipLists ships = listsOf({{"DD", "Ardent"}, {"DD", "Z1", "K", "KM"}, {"DD", "Zulu"}});
    EXPECT_EQ(ships.find(u"RN", "Z1"), std::nullopt);
    EXPECT_EQ(ships.find(u"", "Z1"), 1);
}

} // namespace
} // namespace torvane::testing
