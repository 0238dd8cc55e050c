#include "selection_fixture.h"
#include "support/expect_error.h"
#include "support/failing_system.h"

#include <QDir>

namespace torvane::testing {
namespace {

using ::testing::_;
using ::testing::HasSubstr;
using Message = SelectionMessage;

/// What files do to the picks that are missing, foreign, or can't be written.
class SelectionFiles : public SelectionFixture
{
protected:
    void putBytes(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void openWithTwo()
    {
        useCatalogue(shipsOf("RN", 4));
        open();
        pickAll({"RN 1", "RN 2"});
    }
    void expectTwo()
    {
        EXPECT_EQ(selection.entries(), QStringList({"DD RN 1", "DD RN 2"}));
        EXPECT_EQ(selection.blueShipCount(), 2);
        EXPECT_EQ(markedNames(browser), QStringList({"RN 1", "RN 2"}));
    }
};

TEST_F(SelectionFiles, AListThatCannotBeSeenIsAnErrorAndCountsForNoLimit)
{
    useCatalogue(shipsOf("RN", 4));
    putDivision(Side::Blue, 1, 3);
    const ClosedFolder closed(files.workDir());
    const auto names = HasSubstr("DivisionA1.txt");
    expectError(
        RuntimeError::PermissionDenied, [this] { open(); }, names);
    expectError(
        RuntimeError::PermissionDenied, [this] { selection.countForces(); }, names);
    EXPECT_TRUE(selection.entries().isEmpty());
}

TEST_F(SelectionFiles, WithoutATrackAPickIsAFileFailureThatLeavesAllAsItWas)
{
    openWithTwo();
    QFile::remove(files.shipTrack());
    expectError(
        RuntimeError::FileNotFound, [this] { pick("RN 3"); }, HasSubstr("ShipTrack.bmm"));
    expectTwo();
}

TEST_F(SelectionFiles, WithoutATrackRemoveAndClearAreFileFailuresThatLeaveAllAsItWas)
{
    openWithTwo();
    QFile::remove(files.shipTrack());
    expectError(
        RuntimeError::FileNotFound, [this] { remove(0); }, HasSubstr("ShipTrack.bmm"));
    expectTwo();
    expectError(
        RuntimeError::FileNotFound, [this] { selection.clear(); }, HasSubstr("ShipTrack.bmm"));
    expectTwo();
    EXPECT_FALSE(QFile::exists(files.shipRemove()));
}

TEST_F(SelectionFiles, AnEmptyListIsClearedWithoutATrack)
{
    useCatalogue(shipsOf("RN", 1));
    open();
    QFile::remove(files.shipTrack());
    selection.clear();
    EXPECT_FALSE(QFile::exists(files.shipTrack()));
}

TEST_F(SelectionFiles, ATruncatedTrackKeepsWhatItHas)
{
    useCatalogue(shipsOf("RN", 4));
    putBytes(files.shipTrack(), "\"\"\r\n\"RN 1\"\r\n\"RN 2");
    open();
    EXPECT_EQ(pick("RN 2"), Message::AlreadySelected);
    EXPECT_EQ(pick("RN 3"), std::nullopt);
    EXPECT_EQ(track(), QStringList({"", "RN 1", "RN 2", "RN 3"}));
}

TEST_F(SelectionFiles, AnEmptyTrackTakesPicks)
{
    useCatalogue(shipsOf("RN", 1));
    putBytes(files.shipTrack(), "");
    open();
    EXPECT_EQ(pick("RN 1"), std::nullopt);
    EXPECT_EQ(track(), QStringList({"RN 1"}));
}

TEST_F(SelectionFiles, ATrackOfOtherTextDoesNoHarm)
{
    useCatalogue(shipsOf("RN", 2));
    QByteArray noise;
    for (int i = 0; i < 100000; ++i) {
        noise.append(static_cast<char>(i * 7919 % 256));
    }
    putBytes(files.shipTrack(), noise);
    open();
    EXPECT_EQ(pick("RN 1"), std::nullopt);
    EXPECT_EQ(track().constLast(), "RN 1");
    browser.markSelectedShips(track());
    EXPECT_EQ(markedNames(browser), QStringList({"RN 1"}));
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_FALSE(track().contains("RN 1"));
}

TEST_F(SelectionFiles, ADivisionFileOfOtherTextIsReadLineByLine)
{
    putBytes(files.divisionFile(Side::Blue, 1), "nonsense\r\nX\r\n\r\n\"DD \"\r\n");
    setTrack({"", "sense", "nonsense", "RN 1"});
    useCatalogue(shipsOf("RN", 1));
    open();
    EXPECT_EQ(selection.entries(), QStringList({"nonsense", "X", "DD "}));
    selection.clear();
    EXPECT_EQ(selection.entries(), QStringList());
    // Behind the type of each line: "sense", and twice nothing.
    EXPECT_EQ(track(), QStringList({"nonsense", "RN 1"}));
}

TEST_F(SelectionFiles, ADivisionFileBeyond16BitsIsAnOverflowWithAnEmptyList)
{
    putBytes(files.divisionFile(Side::Blue, 1), QByteArray("x\n").repeated(32768));
    expectError(
        RuntimeError::Overflow, [this] { open(); }, _);
    EXPECT_EQ(selection.entries(), QStringList());
}

TEST_F(SelectionFiles, AFolderInPlaceOfADivisionFileIsAFailureWithAnEmptyList)
{
    QDir().mkpath(files.divisionFile(Side::Blue, 1));
    expectError(
        RuntimeError::PathAccessError, [this] { open(); }, HasSubstr("DivisionA1.txt"));
    EXPECT_EQ(selection.entries(), QStringList());
}

TEST_F(SelectionFiles, ANameWithQuotesAndCommasGoesIntoEveryFileAndOutAgain)
{
    const QString name = "The \"Old, Grey\" One, \"";
    useCatalogue({{"DD", name}, {"DD", "RN 2"}});
    open();
    pickAll({name, "RN 2"});
    EXPECT_EQ(track(), QStringList({"", name, "RN 2"}));
    EXPECT_EQ(pick(name), Message::AlreadySelected);
    EXPECT_EQ(selection.keep(), std::nullopt);
    open();
    EXPECT_EQ(selection.entries(), QStringList({"DD " + name, "DD RN 2"}));
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(track(), QStringList({"", "RN 2"}));
}

TEST_F(SelectionFiles, WhatCannotBeWrittenLeavesListTrackAndCounts)
{
    openWithTwo();
    const QStringList before = track();
    // Readable for the user as whom the folder is tried.
    QFile::setPermissions(files.shipTrack(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const QDir::Filters all = QDir::Files | QDir::Hidden;
    const QStringList filesBefore = QDir(folder()).entryList(all);
    {
        const ReadOnlyFolder readOnly(folder());
        expectError(
            RuntimeError::PermissionDenied, [this] { remove(0); }, HasSubstr("ShipRemove.bmm"));
        expectError(
            RuntimeError::PermissionDenied, [this] { selection.clear(); }, _);
        expectError(
            RuntimeError::PermissionDenied, [this] { selection.keep(); }, HasSubstr("DivisionA1.txt"));
        expectError(
            RuntimeError::PermissionDenied, [this] { pick("RN 3"); }, HasSubstr("ShipTrack.bmm"));
    }
    expectTwo();
    EXPECT_EQ(track(), before);
    EXPECT_EQ(QDir(folder()).entryList(all), filesBefore);
    EXPECT_EQ(pick("RN 3"), std::nullopt);
}

TEST_F(SelectionFiles, RecordsDeletedOrOfOtherTextBetweenTwoPicksTakeTheNextOne)
{
    const struct
    {
        const char* what;
        std::optional<QByteArray> bytes;
    } states[] = {{"deleted", std::nullopt}, {"empty", ""}, {"other text", "<html>\r\nno [section\r\n"}};
    useCatalogue(shipsOf("RN", 4));
    for (const auto& [what, bytes] : states) {
        setTrack({""});
        open();
        pickAll({"RN 1", "RN 2"});
        QFile::remove(files.iniShipData());
        if (bytes) {
            putBytes(files.iniShipData(), *bytes);
        }
        EXPECT_EQ(pick("RN 3"), std::nullopt) << what;
        EXPECT_TRUE(sectionNames(files.iniShipData()).contains("[RN 3]")) << what;
        EXPECT_EQ(track(), QStringList({"", "RN 1", "RN 2", "RN 3"})) << what;
    }
}

TEST_F(SelectionFiles, ADivisionFileDeletedOrOfOtherTextIsWrittenAnewByKeep)
{
    files.write(files.divisionFile(Side::Blue, 1), {"DD RN 4"});
    openWithTwo();
    QFile::remove(files.divisionFile(Side::Blue, 1));
    EXPECT_EQ(selection.keep(), std::nullopt);
    EXPECT_EQ(division(Side::Blue, 1), QStringList({"DD RN 4", "DD RN 1", "DD RN 2"}));
    putBytes(files.divisionFile(Side::Blue, 1), QByteArray("nonsense\r\n").repeated(50));
    EXPECT_EQ(selection.keep(), std::nullopt);
    EXPECT_EQ(division(Side::Blue, 1), QStringList({"DD RN 4", "DD RN 1", "DD RN 2"}));
}

TEST_F(SelectionFiles, ATrackCutOrOfOtherTextWhileTheListIsOpenTakesPickRemoveAndClear)
{
    useCatalogue(shipsOf("RN", 4));
    for (const QByteArray& bytes : {QByteArray("\"\"\r\n\"RN"), QByteArray("[RN 9]\nkey=value\n")}) {
        setTrack({""});
        open();
        pickAll({"RN 1", "RN 2"});
        putBytes(files.shipTrack(), bytes);
        const QStringList before = track();
        EXPECT_EQ(pick("RN 3"), std::nullopt);
        EXPECT_EQ(track(), before + QStringList("RN 3"));
        putBytes(files.shipTrack(), bytes);
        EXPECT_EQ(remove(0), std::nullopt);
        EXPECT_EQ(track(), before);
        EXPECT_EQ(markedNames(browser), QStringList({"RN 2", "RN 3"}));
        putBytes(files.shipTrack(), bytes);
        selection.clear();
        EXPECT_EQ(track(), before);
        EXPECT_EQ(selection.entries(), QStringList());
        EXPECT_EQ(selection.blueShipCount(), 0);
        EXPECT_EQ(markedNames(browser), QStringList());
    }
}

TEST_F(SelectionFiles, AShipWhoseClassIsMissingIsNotPicked)
{
    useCatalogue(shipsOf("RN", 2));
    RawDatabase(catalogueFile()).run("DELETE FROM ShipDaClass");
    open();
    expectError(
        RuntimeError::NoCurrentRecord, [this] { pick("RN 1"); }, HasSubstr("ShipDaClass"));
    EXPECT_EQ(selection.entries(), QStringList());
    EXPECT_EQ(selection.blueShipCount(), 0);
    EXPECT_EQ(track(), QStringList({""}));
    EXPECT_EQ(markedNames(browser), QStringList());
}

} // namespace
} // namespace torvane::testing
