#include "support/catalogue_file.h"
#include "support/editor_fixture.h"

namespace torvane::testing {
namespace {

class CatalogueOfARun : public EditorFixture
{
};

TEST_F(CatalogueOfARun, IsThatOfTheWorkFolder)
{
    CatalogueFile(workFile(QStringLiteral("ShipDatabase.mdb")))
        .addShip(QStringLiteral("Exeter"), QStringLiteral("Exeter"), QStringLiteral("CA"),
                 QStringLiteral("York"), QStringLiteral("RN"));
    start();
    EXPECT_EQ(editor().shipCatalogue().ShipDataB().value(u"Name"), QStringLiteral("Exeter"));
}

TEST_F(CatalogueOfARun, IsNotNeededToStart)
{
    start();
    EXPECT_TRUE(boxes().isEmpty());
    try {
        editor().shipCatalogue().ShipDataB();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::FileNotFound);
        EXPECT_THAT(error.what(), ::testing::HasSubstr(workFile("ShipDatabase.mdb").toStdString()));
    }
}

} // namespace
} // namespace torvane::testing
