#include "ship_state/class_limits.h"

#include "stored_ship.h"
#include "support/expect_error.h"

#include <numeric>

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

using Fields = QList<std::pair<QString, QString>>;

class Limits : public StoredShips
{
protected:
    void addClass(const QString& name, const Fields& fields)
    {
        if (!m_file) {
            m_file.emplace(catalogueFile());
        }
        m_file->addClass(name, fields);
    }
    void loadClass(const QString& name)
    {
        m_file.reset();
        loadClassLimits(limits, catalogue, name);
    }

    ClassLimits limits;

private:
    std::optional<CatalogueFile> m_file;
};

TEST_F(Limits, AreTheFieldsOfTheClass)
{
    addClass(u"Other"_s, {{"f", "1"}});
    addClass(u"York"_s, {{"f", "410"},
                         {"g", " 820 "},
                         {"h", "11"},
                         {"i", "12"},
                         {"j", "13"},
                         {"k", "14"},
                         {"l", "15"},
                         {"m", "16"},
                         {"o", "21"},
                         {"p", "22"},
                         {"q", "23"},
                         {"r", "24"},
                         {"t", "31"},
                         {"u", "32"},
                         {"v", "33"},
                         {"x", "41"},
                         {"y", "42"},
                         {"z", "43"},
                         {"aa", "44"}});
    addClass(u"Last"_s, {{"f", "2"}});
    loadClass(u"York"_s);
    EXPECT_EQ(limits.hull, 410);
    EXPECT_EQ(limits.floatation, 820);
    EXPECT_THAT(limits.rounds, ::testing::ElementsAre(11, 12, 13, 14, 15, 16, 31, 32, 33));
    EXPECT_THAT(limits.secondaryGunCounts, ::testing::ElementsAre(21, 22, 23, 24));
    EXPECT_THAT(limits.torpedoes, ::testing::ElementsAre(41, 42, 43, 44));
    EXPECT_THAT(limits.hasTurret, ::testing::Each(false));
}

TEST_F(Limits, AreRoundedAndWordsCountAs0)
{
    addClass(u"Odd"_s, {{"f", "2.5"}, {"g", "3.5"}, {"h", "many"}, {"i", "-7"}, {"o", "1.4"}});
    loadClass(u"Odd"_s);
    EXPECT_EQ(limits.hull, 2);
    EXPECT_EQ(limits.floatation, 4);
    EXPECT_EQ(limits.rounds[0], 0);
    EXPECT_EQ(limits.rounds[1], -7);
    EXPECT_EQ(limits.secondaryGunCounts[0], 1);
}

TEST_F(Limits, HaveTheTurretsWhoseFieldIsAbove0)
{
    addClass(u"Twin"_s, {{"TurA", "2"}, {"TurB", " 0.5 "}, {"TurC", "0.0"}, {"TurD", "-1"}, {"TurZ", "yes"}});
    loadClass(u"Twin"_s);
    EXPECT_TRUE(limits.hasTurret[0]);
    EXPECT_TRUE(limits.hasTurret[1]);
    EXPECT_EQ(std::accumulate(limits.hasTurret.begin(), limits.hasTurret.end(), 0), 2);
}

TEST_F(Limits, ReplaceThoseOfTheClassBefore)
{
    addClass(u"Twin"_s, {{"f", "300"}, {"h", "5"}, {"TurA", "2"}, {"TurY", "2"}});
    addClass(u"Bare"_s, {});
    loadClass(u"Twin"_s);
    loadClass(u"Bare"_s);
    EXPECT_EQ(limits.hull, 0);
    EXPECT_EQ(limits.rounds[0], 0);
    EXPECT_THAT(limits.hasTurret, ::testing::Each(false));
}

TEST_F(Limits, OfAnUnknownClassAreThoseOfTheLastOne)
{
    addClass(u"York"_s, {{"f", "410"}, {"TurA", "2"}});
    loadClass(u"York"_s);
    loadClass(u"york"_s);
    EXPECT_EQ(limits.hull, 410);
    EXPECT_TRUE(limits.hasTurret[0]);
}

TEST_F(Limits, OfAClassThatStandsTwiceAreThoseOfItsLastRow)
{
    addClass(u"York"_s, {{"f", "410"}});
    addClass(u"York"_s, {{"f", "411"}});
    loadClass(u"York"_s);
    EXPECT_EQ(limits.hull, 411);
}

TEST_F(Limits, BeyondTheirSizeAreAnOverflowAndStayAsTheyWere)
{
    addClass(u"York"_s, {{"f", "410"}});
    addClass(u"Guns"_s, {{"f", "1"}, {"o", "40000"}});
    addClass(u"Hull"_s, {{"f", "3000000000"}});
    loadClass(u"York"_s);
    expectError(RuntimeError::Overflow, [this] { loadClass(u"Guns"_s); });
    EXPECT_EQ(limits.hull, 410);
    expectError(RuntimeError::Overflow, [this] { loadClass(u"Hull"_s); });
    EXPECT_EQ(limits.hull, 410);
}

TEST_F(Limits, WithoutACatalogueAreTheDatabasesError)
{
    expectError(RuntimeError::FileNotFound, [this] { loadClass(u"York"_s); });
}

} // namespace
} // namespace torvane::testing
