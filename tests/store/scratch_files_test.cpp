#include "store/scratch_files.h"

#include "platform/runtime_error.h"
#include "support/failing_system.h"
#include "support/files_fixture.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <gmock/gmock.h>

namespace torvane {
namespace {

using ::testing::HasSubstr;

// Typed apart from the program's own list.
const QStringList killed{
    "DivisionA1.txt", "DivisionB1.txt", "DivisionA2.txt", "DivisionB2.txt", "DivisionA3.txt",
    "DivisionB3.txt", "DivisionA4.txt", "DivisionB4.txt", "DivisionA5.txt", "DivisionB5.txt",
    "DivisionA6.txt", "DivisionB6.txt", "DivisionA7.txt", "DivisionB7.txt", "DivisionA8.txt",
    "DivisionB8.txt", "ShipData.txt",   "DivDataA.txt",   "DivDataB.txt",   "DivDataA1.txt",
    "DivDataB1.txt",  "DivDataA2.txt",  "DivDataB2.txt",  "DivDataA3.txt",  "DivDataB3.txt",
    "DivDataA4.txt",  "DivDataB4.txt",  "DivDataA5.txt",  "DivDataB5.txt",  "DivDataA6.txt",
    "DivDataB6.txt",  "DivDataA7.txt",  "DivDataB7.txt",  "DivDataA8.txt",  "DivDataB8.txt",
    "ShipTrack.bmm",  "iniTemp.bmm",    "iniShipData.bmm"};

const QStringList editCopies{"ExisitTemp.bmm", "ShipRemove.bmm", "TempIniTemp.bmm"};

class Scratch : public testing::FilesFixture
{
protected:
    ProfileStore store;
    ScratchFiles files{store, folder() + '/'};
};

class KillFiles : public Scratch
{
};
class RemoveLeftovers : public Scratch
{
};

TEST_F(Scratch, FilesHaveTheirNamesInTheWorkFolder)
{
    EXPECT_EQ(files.workDir(), folder() + '/');
    EXPECT_EQ(files.divisionFile(Side::Blue, 1), path("DivisionA1.txt"));
    EXPECT_EQ(files.divisionFile(Side::Red, 6), path("DivisionB6.txt"));
    EXPECT_EQ(files.divDataFile(Side::Blue, 2), path("DivDataA2.txt"));
    EXPECT_EQ(files.divDataFile(Side::Red, 1), path("DivDataB1.txt"));
    EXPECT_EQ(files.shipTrack(), path("ShipTrack.bmm"));
    EXPECT_EQ(files.shipRemove(), path("ShipRemove.bmm"));
    EXPECT_EQ(files.iniShipData(), path("iniShipData.bmm"));
    EXPECT_EQ(files.exisitTemp(), path("ExisitTemp.bmm"));
    EXPECT_EQ(files.tempIniTemp(), path("TempIniTemp.bmm"));
}

TEST_F(Scratch, AFolderWithoutASlashAtItsEndIsTheSameFolder)
{
    const ScratchFiles same(store, folder());
    EXPECT_EQ(same.shipTrack(), files.shipTrack());
}

TEST_F(Scratch, NumbersArePerSideSoThatBothSidesHaveAFirstDivision)
{
    files.write(files.divisionFile(Side::Blue, 1), {"CA Exeter"});
    files.write(files.divisionFile(Side::Red, 1), {"BB Graf Spee"});
    EXPECT_EQ(names(), (QStringList{"DivisionA1.txt", "DivisionB1.txt"}));
    EXPECT_EQ(files.read(files.divisionFile(Side::Blue, 1)), QStringList{"CA Exeter"});
    EXPECT_EQ(files.read(files.divisionFile(Side::Red, 1)), QStringList{"BB Graf Spee"});
}

TEST_F(Scratch, OneEmptyValueMakesAFileOfOneEmptyQuotedString)
{
    files.write(files.shipTrack(), {""});
    EXPECT_EQ(bytesOf("ShipTrack.bmm"), QByteArray("\"\"\r\n"));
    EXPECT_EQ(files.read(files.shipTrack()), QStringList{""});
}

TEST_F(Scratch, WritingReplacesTheWholeFile)
{
    files.write(files.shipTrack(), {"Exeter", "Ajax", "Achilles"});
    files.write(files.shipTrack(), {"Ajax"});
    EXPECT_EQ(files.read(files.shipTrack()), QStringList{"Ajax"});
}

TEST_F(Scratch, ReadingAMissingFileIsFileNotFoundAndNamesIt)
{
    try {
        files.read(files.shipTrack());
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::FileNotFound);
        EXPECT_THAT(error.what(), HasSubstr(path("ShipTrack.bmm").toStdString()));
    }
}

TEST_F(Scratch, WritingToAFullDiskKeepsTheOldFile)
{
    files.write(files.shipTrack(), {"Ajax"});
    {
        const testing::FullDisk full(2);
        EXPECT_THROW(files.write(files.shipTrack(), {"Exeter"}), RuntimeError);
    }
    EXPECT_EQ(files.read(files.shipTrack()), QStringList{"Ajax"});
    EXPECT_EQ(names(), QStringList{"ShipTrack.bmm"});
}

TEST(KillList, HasItsNamesInTheirOrder)
{
    EXPECT_EQ(killed.size(), 16 + 1 + 2 + 16 + 3);
    EXPECT_EQ(ScratchFiles::killList(), killed);
}

TEST_F(KillFiles, DeletesEveryFileOfTheList)
{
    for (const QString& name : killed) {
        put(name);
    }
    ASSERT_EQ(names().size(), killed.size());
    files.killFiles();
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(KillFiles, DoesNothingInAnEmptyFolder)
{
    EXPECT_NO_THROW(files.killFiles());
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(KillFiles, DoesNothingWhereThereIsNoFolder)
{
    ScratchFiles nowhere(store, path("none/"));
    EXPECT_NO_THROW(nowhere.killFiles());
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(KillFiles, LeavesTheCopiesOfAnEditTheDatabasesTheHelpAndForeignFiles)
{
    const QStringList kept{"DivDataA0.txt",  "DivDataA9.txt",   "DivisionA.txt",    "DivisionA9.txt",
                           "ExisitTemp.bmm", "SE_README.HLP",   "ScenarioData.mdb", "ShipDatabase.mdb",
                           "ShipRemove.bmm", "TempIniTemp.bmm", "notes.txt",        "shiptrack.bmm"};
    for (const QString& name : kept + killed) {
        put(name);
    }
    files.killFiles();
    EXPECT_EQ(names(), kept);
}

TEST_F(KillFiles, WhatWaitsToBeWrittenToAProfileDiesWithIt)
{
    put("iniTemp.bmm", "[SCENARIODATA]\r\nTITLE=Plate\r\n");
    {
        const ProfileStore::Batch batch(store);
        store.write(path("iniTemp.bmm"), u"SCENARIODATA", u"TITLE", u"Hood");
        store.write(files.iniShipData(), u"SHIP0", u"NAME", u"Hood");
        files.killFiles();
    }
    EXPECT_EQ(names(), QStringList{});
    EXPECT_EQ(store.read(path("iniTemp.bmm"), u"SCENARIODATA", u"TITLE"), QString());
}

TEST_F(KillFiles, AWriteAfterwardsMakesTheProfileAnew)
{
    const ProfileStore::Batch batch(store);
    store.write(path("iniTemp.bmm"), u"SCENARIODATA", u"TITLE", u"Hood");
    files.killFiles();
    store.write(path("iniTemp.bmm"), u"SCENARIODATA", u"MONTH", u"5");
    EXPECT_EQ(store.read(path("iniTemp.bmm"), u"SCENARIODATA", u"TITLE"), QString());
    EXPECT_EQ(store.read(path("iniTemp.bmm"), u"SCENARIODATA", u"MONTH"), QStringLiteral("5"));
}

TEST_F(KillFiles, StopsWithAnErrorAtTheFirstFileThatCannotBeDeleted)
{
    put("DivisionA1.txt");
    put("ShipTrack.bmm");
    ASSERT_TRUE(QDir(folder()).mkdir("DivDataB3.txt"));
    try {
        files.killFiles();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::PathAccessError);
        EXPECT_THAT(error.what(), HasSubstr(path("DivDataB3.txt").toStdString()));
    }
    EXPECT_EQ(names(), (QStringList{"DivDataB3.txt", "ShipTrack.bmm"}));
}

TEST_F(KillFiles, AFolderInPlaceOfTheWorkingProfileIsAnError)
{
    ASSERT_TRUE(QDir(folder()).mkdir("iniTemp.bmm"));
    EXPECT_THROW(files.killFiles(), RuntimeError);
}

TEST_F(KillFiles, WithoutPermissionIsAnError)
{
    put("DivisionA1.txt");
    {
        const testing::ReadOnlyFolder readOnly(folder());
        EXPECT_THROW(files.killFiles(), RuntimeError);
    }
    EXPECT_EQ(names(), QStringList{"DivisionA1.txt"});
}

TEST_F(RemoveLeftovers, DeletesTheCopiesOfAnEdit)
{
    for (const QString& name : editCopies) {
        put(name);
    }
    files.removeLeftovers();
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(RemoveLeftovers, WhatWaitsToBeWrittenToTheCopyDiesWithIt)
{
    {
        const ProfileStore::Batch batch(store);
        store.write(files.tempIniTemp(), u"DIVISION0", u"SIDE", u"Blue");
        files.removeLeftovers();
    }
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(RemoveLeftovers, DeletesHalfWrittenFilesOfEveryNameThatIsWritten)
{
    for (const QString& name : killed + editCopies) {
        put(name + ".aZ09bY");
    }
    files.removeLeftovers();
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(RemoveLeftovers, KnowsTheNamesThatTheSystemMakesForAnInterruptedWrite)
{
    for (int i = 0; i < 200; ++i) {
        QTemporaryFile part(path("iniTemp.bmm.XXXXXX"));
        part.setAutoRemove(false);
        ASSERT_TRUE(part.open());
        ASSERT_FALSE(part.fileName().isEmpty());
    }
    ASSERT_EQ(names().size(), 200);
    files.removeLeftovers();
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(RemoveLeftovers, LeavesWhatIsLikeItButOther)
{
    QStringList kept{"DivisionA9.txt.aZ09bY", "ScenarioData.mdb",     "ScenarioData.mdb.aZ09bY",
                     "ShipTrack.bmm",         "iniTemp.bmm",          "iniTemp.bmm.",
                     "iniTemp.bmm.aZ09b",     "iniTemp.bmm.aZ09bYc",  "iniTemp.bmm.aZ-9bY",
                     "iniTemp.bmm.old",       "myiniTemp.bmm.aZ09bY", "notes.txt.aZ09bY",
                     "iniTemp.bmm.aZ09bY.x",  "iniTemp.bmm.aZ09bY\n"};
    for (const QString& name : kept) {
        put(name);
    }
    files.removeLeftovers();
    kept.sort();
    EXPECT_EQ(names(), kept);
}

TEST_F(RemoveLeftovers, DeletesWhatWasBeingWrittenAndWhatTriedTheFolder)
{
    put(".torvane-aZ09bY");
    put("ShipTrack.bmm");
    files.removeLeftovers();
    EXPECT_EQ(names(), QStringList{"ShipTrack.bmm"});
}

TEST_F(RemoveLeftovers, AFileThatCannotBeDeletedStaysAndTheOthersGo)
{
    ASSERT_TRUE(QDir(folder()).mkdir("ShipRemove.bmm"));
    ASSERT_TRUE(QDir(folder()).mkdir("TempIniTemp.bmm"));
    put("ExisitTemp.bmm");
    put("iniTemp.bmm.aZ09bY");
    EXPECT_NO_THROW(files.removeLeftovers());
    EXPECT_EQ(names(), (QStringList{"ShipRemove.bmm", "TempIniTemp.bmm"}));
}

} // namespace
} // namespace torvane
