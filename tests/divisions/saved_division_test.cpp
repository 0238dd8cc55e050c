#include "divisions/records_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

/// What is looked at before a division is saved, so that a save that can't succeed changes nothing.
class SavedDivision : public RecordsFixture
{
protected:
    void list(const QStringList& lines) { files.write(files.divisionFile(Side::Blue, 1), lines); }
    void require(bool created) { records.requireSavable(fields(Side::Blue, 1), created); }
};

TEST_F(SavedDivision, OfShipsOfTheCatalogueIsFineAndWritesNothing)
{
    list(ships({1, 2}));
    require(true);
    require(false);
    EXPECT_FALSE(QFile::exists(profile.path()));
}

TEST_F(SavedDivision, WithoutAListIsFine)
{
    require(true);
    require(false);
}

TEST_F(SavedDivision, WithAShipThatTheCatalogueLacksIsItsError)
{
    list(ships({1}) + QStringList{QStringLiteral("DD Flying Dutchman")});
    expectError(RuntimeError::NoCurrentRecord, [this] { require(true); });
    expectError(RuntimeError::NoCurrentRecord, [this] { require(false); });
    EXPECT_FALSE(QFile::exists(profile.path()));
}

TEST_F(SavedDivision, NeedsNoCatalogueForTheShipsThatAnEditFound)
{
    const QStringList before{QStringLiteral("DD Flying Dutchman")};
    list(before + ships({1}));
    files.write(files.exisitTemp(), before);
    require(false);
    expectError(RuntimeError::NoCurrentRecord, [this] { require(true); });
}

TEST_F(SavedDivision, WithAListOfOtherTextIsTheCataloguesError)
{
    QFile file(files.divisionFile(Side::Blue, 1));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<html>\r\nnothing of ours");
    file.close();
    expectError(RuntimeError::NoCurrentRecord, [this] { require(true); });
}

TEST_F(SavedDivision, WithACountOfShipsBeyondItsBitsIsAnOverflowBeforeAnythingIsWritten)
{
    create(Side::Blue, 1, ships({1}));
    profile.write(u"DIVISION0", u"SHIPCNT", u"40000");
    expectError(RuntimeError::Overflow, [this] { require(false); });
    require(true);
}

TEST_F(SavedDivision, TakesAnotherFlagshipAtOnce)
{
    create(Side::Red, 1, ships({1}));
    create(Side::Blue, 1, ships({2, 3}));
    EXPECT_TRUE(records.writeFlagship(readDialogFields(fields(Side::Blue, 1)), 1));
    EXPECT_EQ(key(QStringLiteral("DIVISION1"), "FLAGSHIPINDEX"), QStringLiteral("1"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX"), QStringLiteral("0"));
    EXPECT_FALSE(records.writeFlagship(readDialogFields(fields(Side::Red, 2)), 3));
}

TEST_F(SavedDivision, WithAFolderInPlaceOfItsListNamesIt)
{
    const QString path = files.divisionFile(Side::Blue, 1);
    ASSERT_TRUE(QDir().mkpath(path));
    try {
        require(true);
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.text().contains(QStringLiteral("DivisionA1.txt"))) << error.what();
    }
}

} // namespace
} // namespace torvane::testing
