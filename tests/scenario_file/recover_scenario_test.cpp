#include "scenario_file/recover_scenario.h"

#include "platform/code_page.h"
#include "platform/profile.h"
#include "scenario_file/load_fixture.h"
#include "store/target_area.h"
#include "support/expect_error.h"
#include "support/failing_system.h"

namespace torvane::testing {
namespace {

const QDateTime moment(QDate(1941, 5, 24), QTime(5, 52, 7));

class Recovery : public LoadedStore
{
protected:
    /// What a run leaves when it is killed: a division a side, with a ship each, and places in yards.
    void storeScenario(const char* title = "Denmark Strait")
    {
        set("SCENARIODATA", "TITLE", title);
        set("SCENARIOINFO", "DIVISIONCNT", "2");
        for (const char* division : {"DIVISION0", "DIVISION1"}) {
            const QByteArray ship = QByteArray(division) + "SHIP0";
            set(division, "DIVISIONNAME", "Division 1");
            set(division, "SIDE", qstrcmp(division, "DIVISION0") == 0 ? "Blue" : "Red");
            set(division, "FORMATIONSPACING", "1000");
            set(ship.constData(), "NAME", "Hood");
            set(ship.constData(), "XPOSITION", "1000");
            set(ship.constData(), "ZPOSITION", "-2000");
        }
    }
    QString recovered(Language language = Language::English) const
    {
        return recoverScenario(profile.path(), scenarioFolder(), language, moment).value_or(QString());
    }
    QString recoveredName(Language language = Language::English) const
    {
        return QFileInfo(recovered(language)).fileName();
    }
    QString keyOf(const QString& path, const char* section, const char* key) const
    {
        return fromCodePage(GetIniKey(Profile::parse(readWholeFile(path)), section, key));
    }
};

TEST_F(Recovery, WritesWhatSaveWouldHaveWritten)
{
    storeScenario();
    const QByteArray saved = scenarioBytes(profile, {}, u"Force A");
    EXPECT_EQ(readWholeFile(recovered()), saved);
    EXPECT_EQ(scenarioNames().size(), 1);
}

TEST_F(Recovery, NamesTheFileAfterTitleWordAndTime)
{
    storeScenario("Vestfjord, zwei Zerstörer");
    EXPECT_EQ(recoveredName(),
              QStringLiteral("Vestfjord, zwei Zerstörer (recovered 1941-05-24 05.52.07).scn"));
    EXPECT_EQ(recoveredName(Language::German),
              QStringLiteral("Vestfjord, zwei Zerstörer (wiederhergestellt 1941-05-24 05.52.07).scn"));
}

TEST_F(Recovery, GoesOverNoOtherFileWhateverItIs)
{
    storeScenario();
    const QString first = scenario("Denmark Strait (recovered 1941-05-24 05.52.07).scn");
    writeScratchFile(first, "another");
    ASSERT_TRUE(QDir().mkdir(scenario("Denmark Strait (recovered 1941-05-24 05.52.07) 2.scn")));
    ASSERT_TRUE(
        QFile::link(scenario("nowhere"), scenario("Denmark Strait (recovered 1941-05-24 05.52.07) 3.scn")));
    EXPECT_EQ(recoveredName(), QStringLiteral("Denmark Strait (recovered 1941-05-24 05.52.07) 4.scn"));
    EXPECT_EQ(readWholeFile(first), "another");
    EXPECT_FALSE(QFile::exists(scenario("nowhere")));
}

TEST_F(Recovery, MakesANameOfAnyTitle)
{
    const struct
    {
        const char* title;
        QString start;
    } rows[] = {{"A/B\\C: why? *\"<>|", QStringLiteral("A-B-C- why- ----- (")},
                {"..hidden", QStringLiteral("hidden (")},
                {"", QStringLiteral("Scenario (")},
                {"...", QStringLiteral("Scenario (")},
                {"con", QStringLiteral("con (")}};
    for (const auto& row : rows) {
        storeScenario(row.title);
        EXPECT_TRUE(recoveredName().startsWith(row.start))
            << row.title << ": " << recoveredName().toStdString();
        EXPECT_EQ(keyOf(recovered(), "SCENARIODATA", "TITLE"),
                  *row.title ? QString::fromUtf8(row.title) : QString(invalidValue));
    }
    storeScenario("");
    EXPECT_TRUE(recoveredName(Language::German).startsWith(u"Szenario ("));
}

TEST_F(Recovery, CutsATitleThatIsTooLongForAFile)
{
    storeScenario(QByteArray("ö").repeated(360).constData());
    const QString path = recovered();
    EXPECT_EQ(QFileInfo(path).fileName().count(u'ö'), 75);
    EXPECT_EQ(keyOf(path, "SCENARIODATA", "TITLE"), QString(360, u'ö'));
}

TEST_F(Recovery, TakesTheTargetAreaThatTheMapHadLast)
{
    storeScenario();
    rememberTargetArea(profile, {.x = 1200, .z = -340, .dim = 4630});
    rememberTargetArea(profile, {.x = 1300, .z = -350, .dim = 4630});
    const QByteArray saved = scenarioBytes(profile, {.x = 1300, .z = -350, .dim = 4630}, u"Force A");
    EXPECT_EQ(readWholeFile(recovered()), saved);
    EXPECT_FALSE(saved.contains("TARGETAREA")) << "the note itself belongs to the profile alone";
    EXPECT_EQ(keyOf(recovered(), "SCENARIODATA", "BLUE_TARGETBOX_Z"), QStringLiteral("350"));
    EXPECT_EQ(keyOf(recovered(Language::German), "SCENARIODATA", "RED_TARGETBOX_X"), QStringLiteral("1300"))
        << "under German labels a save writes the other side's keys";
    set("SCENARIODATA", "BLUE_FORCE_TYPE", "1");
    EXPECT_EQ(keyOf(recovered(), "SCENARIODATA", "RED_TARGETBOX_X"), QStringLiteral("1300"))
        << "with swapped roles too";
}

TEST_F(Recovery, TakesTheTargetAreaOfALoadedScenarioThatNoMapHasShownYet)
{
    storeScenario();
    const QByteArray file = scenarioBytes(profile, {.x = 5000, .z = 700}, u"Force A");
    load(file);
    EXPECT_EQ(keyOf(recovered(), "SCENARIODATA", "BLUE_TARGETBOX_X"), QStringLiteral("5000"));
    EXPECT_EQ(keyOf(recovered(), "SCENARIODATA", "BLUE_TARGETBOX_Z"), QStringLiteral("-700"));
}

TEST_F(Recovery, LeavesOutATargetAreaThatNoMapCouldShow)
{
    storeScenario();
    set("SCENARIODATA", "BLUE_TARGETBOX_X", "99999999999");
    EXPECT_EQ(keyOf(recovered(), "SCENARIODATA", "BLUE_TARGETBOX_X"), QStringLiteral("0"));
}

TEST_F(Recovery, IsLoadedAsItStoodInYardsOnTheMap)
{
    storeScenario();
    loadFile(recovered());
    EXPECT_EQ(value("DIVISION0SHIP0", "NAME"), QStringLiteral("Hood"));
    EXPECT_EQ(value("DIVISION0SHIP0", "XPOSITION"), QStringLiteral("1000"));
    EXPECT_EQ(value("DIVISION1SHIP0", "ZPOSITION"), QStringLiteral("-2000"));
    EXPECT_EQ(value("DIVISION1", "FORMATIONSPACING"), QStringLiteral("1000"));
    EXPECT_EQ(profile.divisionCount(), 2);
}

TEST_F(Recovery, OfAScenarioWithoutADivisionYetCanBeLoaded)
{
    set("SCENARIODATA", "TITLE", "Just begun");
    const QString path = recovered();
    EXPECT_EQ(keyOf(path, "SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("0"));
    loadFile(path);
    EXPECT_EQ(value("SCENARIODATA", "TITLE"), QStringLiteral("Just begun"));
    EXPECT_EQ(profile.divisionCount(), 0);
}

TEST_F(Recovery, CountsTheDivisionsWhereTheirNumberIsMissing)
{
    storeScenario();
    QByteArray bytes = profileBytes();
    bytes.replace("[SCENARIOINFO]\r\nDIVISIONCNT=2\r\n", "");
    ASSERT_FALSE(bytes.contains("DIVISIONCNT"));
    store(bytes);
    EXPECT_EQ(keyOf(recovered(), "SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("2"));
}

TEST_F(Recovery, TakesWhatIsLeftOfADamagedProfile)
{
    storeScenario();
    const QByteArray whole = profileBytes();
    for (qsizetype length = 0; length <= whole.size(); length += 7) {
        store(whole.first(length));
        const QString path = recovered();
        if (!path.isEmpty()) {
            loadFile(path);
            ASSERT_TRUE(QFile::remove(path));
            store({});
        }
    }
    store(whole.first(whole.indexOf("[DIVISION1]")));
    EXPECT_EQ(keyOf(recovered(), "DIVISION0SHIP0", "NAME"), QStringLiteral("Hood"));
}

TEST_F(Recovery, OfNothingMakesNothing)
{
    EXPECT_EQ(recovered(), QString()) << "no profile";
    const QByteArrayList noScenario{QByteArray(), QByteArray("x"), QByteArray(4096, '\0'),
                                    QByteArray("[VERSION]\r\nVERSIONNUMBER=64\r\n"),
                                    QByteArray("[SCENARIODATA]\r\nTITLE=\r\n")};
    for (const QByteArray& bytes : noScenario) {
        store(bytes);
        EXPECT_EQ(recovered(), QString()) << bytes.left(20).toStdString();
    }
    EXPECT_EQ(scenarioNames(), QStringList());
}

TEST_F(Recovery, MakesTheFolderIfItIsMissing)
{
    storeScenario();
    ASSERT_TRUE(QDir(scenarioFolder()).removeRecursively());
    EXPECT_TRUE(QFile::exists(recovered()));
}

TEST_F(Recovery, SaysWhichFileResistsAndLeavesNoHalfOfIt)
{
    storeScenario();
    {
        const ReadOnlyFolder locked(scenarioFolder());
        expectError(
            RuntimeError::PermissionDenied, [this] { recovered(); },
            ::testing::HasSubstr("Denmark Strait (recovered"));
    }
    {
        const FullDisk full(100);
        expectError(
            RuntimeError::DiskFull, [this] { recovered(); },
            ::testing::HasSubstr("Denmark Strait (recovered"));
    }
    EXPECT_EQ(scenarioNames(), QStringList());
}

TEST_F(Recovery, APlaceBeyondAllNumbersIsAnErrorAndNoFile)
{
    storeScenario();
    set("DIVISION0SHIP0", "XPOSITION", "9e307");
    set("DIVISION0SHIP0", "ZPOSITION", "1e999");
    expectError(RuntimeError::Overflow, [this] { recovered(); });
    EXPECT_EQ(scenarioNames(), QStringList());
}

TEST_F(Recovery, SetsAProfileAsideUnderANameOfItsOwn)
{
    storeScenario();
    const QByteArray bytes = profileBytes();
    const QString first = setProfileAside(profile.path(), moment);
    EXPECT_EQ(QFileInfo(first).fileName(), QStringLiteral("Unrecovered 1941-05-24 05.52.07.bmm"));
    EXPECT_FALSE(QFile::exists(profile.path()));
    store(bytes);
    const QString second = setProfileAside(profile.path(), moment);
    EXPECT_NE(first, second);
    EXPECT_EQ(readWholeFile(first), bytes);
    EXPECT_THAT(profilesSetAside(workFolder()), ::testing::UnorderedElementsAre(first, second));
}

TEST(RememberedTargetArea, IsNothingWhereNoneWasPlaced)
{
    ProfileStore store;
    const QTemporaryDir folder;
    WorkingProfile profile(store, folder.path());
    rememberTargetArea(profile, {.x = 5, .z = 6});
    EXPECT_FALSE(QFile::exists(profile.path())) << "without a scenario there is no profile";
    profile.write(u"SCENARIODATA", u"TITLE", u"A");
    rememberTargetArea(profile, {});
    EXPECT_EQ(rememberedTargetArea(profile.parsed()), std::nullopt);
    rememberTargetArea(profile, {.x = 5, .z = -6});
    EXPECT_EQ(rememberedTargetArea(profile.parsed()), (TargetArea{.x = 5, .z = -6}));
    rememberTargetArea(profile, {});
    EXPECT_EQ(rememberedTargetArea(profile.parsed()), TargetArea{});
}

} // namespace
} // namespace torvane::testing
