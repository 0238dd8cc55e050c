#include "divisions/speed_limits.h"

#include "divisions/records_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

TEST(SeaStateSpeeds, AreTheTablesCellByCell)
{
    const char* const types[] = {"BB", "BC", "CA", "CL", "DD", "TR"};
    const int knots[8][6] = {
        {55, 55, 55, 55, 55, 40}, {50, 50, 50, 50, 50, 35}, {40, 40, 40, 40, 40, 30},
        {35, 35, 35, 35, 35, 25}, {32, 32, 30, 30, 30, 20}, {29, 29, 27, 26, 25, 15},
        {24, 24, 22, 21, 20, 10}, {20, 20, 17, 16, 15, 10},
    };
    for (int seaState = 1; seaState <= 8; ++seaState) {
        for (int type = 0; type < 6; ++type) {
            EXPECT_EQ(seaStateSpeed(seaState, QString::fromLatin1(types[type])), knots[seaState - 1][type])
                << seaState << types[type];
        }
    }
}

TEST(SeaStateSpeeds, FailOutsideTheTable)
{
    for (const double seaState : {-1.0, 0.0, 9.0, 1e9}) {
        expectError(RuntimeError::SubscriptOutOfRange,
                    [=] { seaStateSpeed(seaState, QStringLiteral("BB")); });
    }
    for (const char* type : {"", "bb", "CV", "BB "}) {
        expectError(RuntimeError::SubscriptOutOfRange, [=] { seaStateSpeed(1, QString::fromLatin1(type)); });
    }
}

/// A catalogue with a ship for each class and speed that a test asks for; each look-up reads it anew.
class SpeedLimit : public RecordsFixture
{
protected:
    /// Adds a ship of a class of its own and returns its line.
    QString ship(const char* type, const char* topSpeed)
    {
        const QString name =
            QStringLiteral("%1 %2").arg(QLatin1StringView(type), QLatin1StringView(topSpeed));
        const RawDatabase database(workDir + shipDatabaseFile);
        database.run(QStringLiteral("INSERT INTO ShipDataB (Name, Type, Class) VALUES ('%1', '%2', 'c%1')")
                         .arg(name, QLatin1StringView(type)));
        database.run(QStringLiteral("INSERT INTO ShipDaClass (b, e) VALUES ('c%1', '%2')")
                         .arg(name, QLatin1StringView(topSpeed)));
        return QLatin1StringView(type) + QLatin1Char(' ') + name;
    }
    DivisionSpeeds division(const QStringList& ships, const char* seaState) const
    {
        return {.listedShips = static_cast<int>(ships.size()),
                .ships = ships,
                .seaState = QString::fromLatin1(seaState)};
    }
    QString limited(const QString& speed, const QStringList& ships, const char* seaState = "1")
    {
        ShipCatalogue read(controls);
        return limitSpeed(speed, division(ships, seaState), read);
    }
    double highest(const QStringList& ships, const char* seaState)
    {
        ShipCatalogue read(controls);
        return highestSpeed(division(ships, seaState), read);
    }
};

TEST_F(SpeedLimit, WithoutShipsIsEightWhateverTheBoxHolds)
{
    EXPECT_EQ(limited(QStringLiteral("31"), {}), QStringLiteral("8"));
    EXPECT_EQ(limited(QStringLiteral(""), {}), QStringLiteral("8"));
    EXPECT_EQ(
        limitSpeed(QStringLiteral("31"), {.listedShips = 0, .ships = ships({1}), .seaState = {}}, catalogue),
        QStringLiteral("8"))
        << "the Division file decides, not the grid";
}

TEST_F(SpeedLimit, IsThatOfABattleshipInHeavySeaAndTheFasterDestroyerIsNotChecked)
{
    EXPECT_EQ(highest({ship("BB", "30"), ship("DD", "35")}, "8"), 20);
}

TEST_F(SpeedLimit, IsThatOfADestroyerInHeavySeaAndTheBattleshipBehindItChangesNothing)
{
    EXPECT_EQ(highest({ship("DD", "35"), ship("BB", "30")}, "8"), 15);
}

TEST_F(SpeedLimit, IsTheSlowestShipsTopSpeedInACalmSea)
{
    EXPECT_EQ(highest({ship("BB", "30"), ship("TR", "12"), ship("DD", "36")}, "1"), 12);
}

TEST_F(SpeedLimit, RoundsTopSpeedAndSeaState)
{
    EXPECT_EQ(highest({ship("BB", "30.6")}, "1"), 31);
    EXPECT_EQ(highest({ship("BB", "40")}, "7.6"), 20) << "row 8";
    EXPECT_EQ(highest({ship("BB", "45")}, "2.5"), 45) << "row 2: a half goes to the even number";
    EXPECT_EQ(highest({ship("BB", "46")}, "3.5"), 35) << "row 4";
}

TEST_F(SpeedLimit, IsFiftyAtMostAndTheSeaIsNotLookedAtForAFasterShip)
{
    EXPECT_EQ(highest({ship("DD", "50"), ship("DD", "55")}, "8"), 50);
    EXPECT_EQ(highest({ship("CV", "60")}, "77"), 50) << "neither type nor sea state is looked up";
}

TEST_F(SpeedLimit, FailsForASeaStateOrATypeOutsideTheTable)
{
    for (const char* seaState : {"0", "9", "", "INVALID"}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { highest(ships({1}), seaState); });
    }
    const QString carrier = ship("CV", "30");
    expectError(RuntimeError::SubscriptOutOfRange, [&] { highest({carrier}, "1"); });
}

TEST_F(SpeedLimit, TakesTheNameBehindTheTypeWithoutBlanks)
{
    EXPECT_EQ(highest({QStringLiteral("DD   Ship 1  ")}, "1"), 36);
    EXPECT_EQ(highest({QStringLiteral("XXShip 1")}, "1"), 36);
}

TEST_F(SpeedLimit, OfAShipOrClassThatTheCatalogueLacksIsItsError)
{
    expectError(RuntimeError::NoCurrentRecord,
                [&] { limited(QStringLiteral("8"), {QStringLiteral("DD Flying Dutchman")}); });
    {
        const RawDatabase database(workDir + shipDatabaseFile);
        database.run(
            QStringLiteral("INSERT INTO ShipDataB (Name, Type, Class) VALUES ('Lost', 'DD', 'None')"));
    }
    expectError(RuntimeError::NoCurrentRecord, [&] { highest({QStringLiteral("DD Lost")}, "1"); });
}

TEST_F(SpeedLimit, WrapsTwentyAndOneToOneAndOneLessOneToTheLimit)
{
    const QStringList battleship{ship("BB", "30")};
    EXPECT_EQ(steppedSpeed(QStringLiteral("20"), 1), QStringLiteral("21"));
    EXPECT_EQ(limited(QStringLiteral("21"), battleship, "8"), QStringLiteral("1"));
    EXPECT_EQ(steppedSpeed(QStringLiteral("1"), -1), QStringLiteral("0"));
    EXPECT_EQ(limited(QStringLiteral("0"), battleship, "8"), QStringLiteral("20"));
    EXPECT_EQ(limited(QStringLiteral("20"), battleship, "8"), QStringLiteral("20"));
    EXPECT_EQ(limited(QStringLiteral("1"), battleship, "8"), QStringLiteral("1"));
}

TEST_F(SpeedLimit, RoundsWhatStandsInTheBox)
{
    const QStringList battleship{ship("BB", "30")};
    EXPECT_EQ(limited(QStringLiteral("8.5"), battleship), QStringLiteral("8"));
    EXPECT_EQ(limited(QStringLiteral("9.5 kn"), battleship), QStringLiteral("10"));
    EXPECT_EQ(steppedSpeed(QStringLiteral("8.5"), 1), QStringLiteral("9"));
    EXPECT_EQ(steppedSpeed(QStringLiteral("full ahead"), 1), QStringLiteral("1"));
    EXPECT_EQ(limited(QStringLiteral("1E400"), battleship), QStringLiteral("1"));
    EXPECT_EQ(limited(QStringLiteral("-1E400"), battleship), QStringLiteral("30"));
    EXPECT_EQ(limited(steppedSpeed(QStringLiteral("1E400"), 1), battleship), QStringLiteral("1"));
}

} // namespace
} // namespace torvane::testing
