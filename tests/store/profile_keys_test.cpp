#include "store/profile_keys.h"

#include "store/profile_key_lists.h"
#include "store/working_profile.h"
#include "support/printers.h"

#include <gmock/gmock.h>

#include <array>

namespace torvane::testing {
namespace {

const QStringList position = QStringLiteral("XPOSITION YPOSITION ZPOSITION").split(u' ');

template <std::size_t size>
QStringList listOf(const std::array<QStringView, size>& keys)
{
    QStringList list;
    for (const QStringView key : keys) {
        list << key.toString();
    }
    return list;
}

using ProfileKeys = ::testing::Test;

TEST_F(ProfileKeys, TheScenarioDataSectionHasTheFiftyKeysOfTheScenarioFile)
{
    EXPECT_EQ(scenarioDataKeys.size(), 50U);
    EXPECT_EQ(listOf(scenarioDataKeys), scenarioData);
}

TEST_F(ProfileKeys, ADivisionHasNineKeys)
{
    EXPECT_EQ(divisionKeys.size(), 9U);
    EXPECT_EQ(listOf(divisionKeys), division);
}

TEST_F(ProfileKeys, AShipHasSeventySevenKeys)
{
    EXPECT_EQ(shipKeys.size(), 77U);
    EXPECT_EQ(listOf(shipKeys), identity + position + condition);
}

TEST_F(ProfileKeys, NumbersStandInSectionNamesPlainlyAndCountFromZero)
{
    EXPECT_EQ(divisionSection(0), u"DIVISION0");
    EXPECT_EQ(divisionSection(11), u"DIVISION11");
    EXPECT_EQ(shipSection(3, 0), u"DIVISION3SHIP0");
    EXPECT_EQ(shipSection(11, 13), u"DIVISION11SHIP13");
    EXPECT_EQ(divisionSections, 12);
    EXPECT_EQ(shipSections, 14);
}

} // namespace
} // namespace torvane::testing
