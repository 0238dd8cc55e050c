#include "overview/environment_rules.h"
#include "support/printers.h"

#include <gtest/gtest.h>

#include <set>

namespace torvane {

void PrintTo(const GameLength& length, std::ostream* stream)
{
    *stream << (length.hour + u':' + length.minutes).toStdString();
}

namespace {

GameLength length(const char* hour, const char* minutes)
{
    return {QString::fromLatin1(hour), QString::fromLatin1(minutes)};
}

struct Row
{
    GameLength from;
    GameLength byHour;
    GameLength byMinutes;
    const char* caption;
};
// Every length that clicks can reach, where each of the two buttons leads, and the caption.
const Row rows[] = {
    {length("0", "30"), length("1", "30"), length("0", "45"), "0.50"},
    {length("0", "45"), length("1", "45"), length("0", "30"), "0.75"},
    {length("1", "00"), length("2", "00"), length("1", "15"), "1.00"},
    {length("1", "15"), length("2", "15"), length("1", "30"), "1.25"},
    {length("1", "30"), length("2", "30"), length("1", "45"), "1.50"},
    {length("1", "45"), length("2", "45"), length("1", "00"), "1.75"},
    {length("2", "00"), length("3", "00"), length("2", "15"), "2.00"},
    {length("2", "15"), length("3", "15"), length("2", "30"), "2.25"},
    {length("2", "30"), length("3", "30"), length("2", "45"), "2.50"},
    {length("2", "45"), length("3", "30"), length("2", "00"), "2.75"},
    {length("3", "00"), length("0", "30"), length("3", "15"), "3.00"},
    {length("3", "15"), length("0", "30"), length("3", "30"), "3.25"},
    {length("3", "30"), length("0", "30"), length("3", "00"), "3.50"},
};

TEST(LengthOfTheGame, EveryReachableLengthStepsAsTheRulesSay)
{
    for (const Row& row : rows) {
        EXPECT_EQ(steppedGameLengthHour(row.from), row.byHour) << row.caption;
        EXPECT_EQ(steppedGameLengthMinutes(row.from), row.byMinutes) << row.caption;
        EXPECT_EQ(gameLengthCaption(row.from), QString::fromLatin1(row.caption));
    }
}

TEST(LengthOfTheGame, ClicksFromTheDefaultReachHalfAnHourToThreeAndAHalfAndNothingElse)
{
    std::set<QString> reached;
    std::vector<GameLength> open{length("2", "00")};
    while (!open.empty()) {
        const GameLength from = open.back();
        open.pop_back();
        if (!reached.insert(gameLengthCaption(from)).second) {
            continue;
        }
        open.push_back(steppedGameLengthHour(from));
        open.push_back(steppedGameLengthMinutes(from));
    }
    std::set<QString> expected;
    for (const Row& row : rows) {
        expected.insert(QString::fromLatin1(row.caption));
    }
    EXPECT_EQ(reached, expected);
}

TEST(LengthOfTheGame, HourFourKeepsTheLaterMinutes)
{
    EXPECT_EQ(steppedGameLengthHour(length("3", "45")), length("0", "45"));
    EXPECT_EQ(steppedGameLengthHour(length("3", "30")), length("0", "30"));
}

TEST(LengthOfTheGame, ALengthThatWasNeverReachableComesBackByAMinuteClick)
{
    EXPECT_EQ(steppedGameLengthMinutes(length("0", "00")), length("0", "30"));
    EXPECT_EQ(steppedGameLengthMinutes(length("0", "15")), length("0", "30"));
    EXPECT_EQ(steppedGameLengthMinutes(length("3", "45")), length("3", "00"));
}

TEST(LengthOfTheGame, DamagedLabelsStepWithoutHarm)
{
    EXPECT_EQ(steppedGameLengthHour(length("INVALID", "INVALID")), length("1", "INVALID"));
    EXPECT_EQ(steppedGameLengthMinutes(length("INVALID", "INVALID")), length("0", "30"));
    EXPECT_EQ(steppedGameLengthHour({QString(400, u'9'), QStringLiteral("00")}), length("0", "30"));
    EXPECT_EQ(steppedGameLengthMinutes({QStringLiteral("1"), QString(400, u'9')}), length("1", "00"));
    EXPECT_EQ(steppedGameLengthMinutes(length("-7", "-99")), length("0", "30"));
    EXPECT_EQ(gameLengthCaption(length("1", "07")), QStringLiteral("1.07"));
}

TEST(LengthOfTheGame, TheQuartersAreInMinutesAndHundredths)
{
    const char* const quarters[][2] = {{"00", "00"}, {"15", "25"}, {"30", "50"}, {"45", "75"}};
    ASSERT_EQ(quarterHours.size(), std::size(quarters));
    for (std::size_t i = 0; i < std::size(quarters); ++i) {
        EXPECT_EQ(QString(quarterHours[i].minutes), QString::fromLatin1(quarters[i][0]));
        EXPECT_EQ(QString(quarterHours[i].hundredths), QString::fromLatin1(quarters[i][1]));
    }
}

} // namespace
} // namespace torvane
