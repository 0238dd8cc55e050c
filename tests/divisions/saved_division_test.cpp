#include "divisions/records_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

/// What is looked at before a division is saved, so that a save that can't succeed changes nothing.
class SavedDivision : public RecordsFixture
{
protected:
    void list(const QStringList& lines) { files.write(files.divisionFile(Side::Blue, 1), lines); }
    void require(bool created) { records.requireShips(fields(Side::Blue, 1), created); }
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
