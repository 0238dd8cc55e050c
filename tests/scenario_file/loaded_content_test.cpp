#include "platform/runtime_error.h"
#include "scenario_file/load_fixture.h"
#include "store/profile_keys.h"
#include "support/expect_error.h"

#include <string>
#include <sys/resource.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1:max_allocation_size_mb=500";
}
#endif

namespace torvane::testing {
namespace {

/// Files that no author would make.
class OddFile : public LoadedStore
{
protected:
    /// Loads it, and then a good one: nothing of the first is left.
    void loadThenAnother(const QByteArray& bytes)
    {
        load(bytes);
        expectOnlyScratchFiles();
        const Loaded odd{profileBytes(), menus.calls};
        load(good());
        EXPECT_EQ(value("SCENARIODATA", "TITLE"), QStringLiteral("Good"));
        EXPECT_EQ(division(Side::Red, 1), QStringList{QStringLiteral("DD Z 1")});
        EXPECT_EQ(profileBytes().count('['), 3 + 2);
        m_odd = odd;
    }
    void expectOnlyScratchFiles() const
    {
        for (const QString& name : workNames()) {
            EXPECT_TRUE(name.startsWith(QStringLiteral("Div")) || name == QStringLiteral("ShipTrack.bmm") ||
                        name == QStringLiteral("iniTemp.bmm"))
                << name.toStdString();
        }
        EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("loaded.scn")});
    }
    static QByteArray good()
    {
        return section("SCENARIODATA", {"TITLE=Good"}) + divisionOf(0, "Red") +
               shipOf(0, 0, {"NAME=Z 1", "TYPE=DD"});
    }
    /// What a file without a single key gives.
    QByteArray profileOfNothing()
    {
        load("");
        return profileBytes();
    }
    const QByteArray& oddProfile() const { return m_odd.profile; }
    const QStringList& oddMenus() const { return m_odd.menus; }

private:
    struct Loaded
    {
        QByteArray profile;
        QStringList menus;
    };
    Loaded m_odd;
};

TEST_F(OddFile, ThatIsEmptyGivesAProfileOfTheWordInvalid)
{
    loadThenAnother("");
    const Profile loaded = Profile::parse(oddProfile());
    for (const QStringView key : scenarioDataKeys) {
        const QString name = key.toString();
        const char* expected = name == QStringLiteral("AIR_SUPERIORITY") ? "2"
                               : name.endsWith(QStringLiteral("BOX_Z")) || name == QStringLiteral("MOVIE")
                                   ? "0"
                                   : "INVALID";
        EXPECT_EQ(GetIniKey(loaded, "SCENARIODATA", name.toLatin1()), expected) << name.toStdString();
    }
    EXPECT_EQ(GetIniKey(loaded, "SCENARIOINFO", "DIVISIONCNT"), "INVALID");
    EXPECT_EQ(oddProfile().count('['), 3);
    EXPECT_TRUE(oddMenus().isEmpty());
}

TEST_F(OddFile, OfAnotherKindGivesTheSameAsAnEmptyOne)
{
    const QByteArray nothing = profileOfNothing();
    QByteArray binary;
    for (int i = 0; i < 100'000; ++i) {
        binary += static_cast<char>((i * 7919) >> (i % 13));
    }
    const QString text = QStringLiteral("[SCENARIODATA]\r\nTITLE=Wide\r\n");
    const QByteArray utf16 =
        QByteArray("\xFF\xFE", 2) + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    const std::vector<QByteArray> kinds{binary,
                                        QByteArray(5000, '\0'),
                                        utf16,
                                        "{\"title\": \"x\"}",
                                        "<scenario><title>x</title></scenario>",
                                        "TITLE=x\r\n[OTHER]\r\nTITLE=x\r\n",
                                        "\"Division 1\"\r\n\"Blue\"\r\n",
                                        "\x89PNG\r\n\x1A\n"};
    for (const QByteArray& bytes : kinds) {
        loadThenAnother(bytes);
        EXPECT_EQ(oddProfile(), nothing) << bytes.left(20).toPercentEncoding().constData();
        EXPECT_TRUE(oddMenus().isEmpty());
    }
}

TEST_F(OddFile, WithAByteOrderMarkOrOtherLineEndsIsRead)
{
    for (const char* bytes : {"\xEF\xBB\xBF[SCENARIODATA]\nTITLE=x", "[scenariodata]\rtitle=x\r",
                              "  [ SCENARIODATA ] junk\r\n\tTITLE = x \r\n"}) {
        loadThenAnother(bytes);
        EXPECT_TRUE(oddProfile().contains("[SCENARIODATA]\r\nTITLE=x\r\n")) << bytes;
    }
}

TEST_F(OddFile, WithDoubledSectionsAndKeysCountsTheFirst)
{
    loadThenAnother(section("SCENARIODATA", {"TITLE=first", "TITLE=second"}) +
                    section("SCENARIODATA", {"TITLE=third", "MONTH=May"}) + divisionOf(0, "Blue") +
                    divisionOf(0, "Red") + shipOf(0, 0) + shipOf(0, 0, {"NAME=Other", "TYPE=DD"}));
    EXPECT_TRUE(oddProfile().contains("\r\nTITLE=first\r\n"));
    EXPECT_TRUE(oddProfile().contains("\r\nMONTH=INVALID\r\n"));
    EXPECT_TRUE(oddProfile().contains("\r\nSIDE=Blue\r\n"));
    EXPECT_TRUE(oddProfile().contains("\r\nNAME=Cossack\r\nSHORTNAME=INVALID\r\nTYPE=INVALID\r\n"));
    EXPECT_EQ(oddProfile().count('['), 3 + 2);
}

TEST_F(OddFile, WithNinetyNineDivisionsGivesTwelve)
{
    QByteArray file = section("SCENARIOINFO", {"DIVISIONCNT=99"});
    for (int n = 0; n < 99; ++n) {
        file += divisionOf(n, n % 2 == 0 ? "Blue" : "Red");
        for (int m = 0; m < 20; ++m) {
            file += shipOf(n, m);
        }
    }
    loadThenAnother(file);
    EXPECT_EQ(oddProfile().count('['), 3 + 12 + 12 * 14);
    EXPECT_TRUE(oddProfile().contains("\r\nDIVISIONCNT=99\r\n"));
    EXPECT_EQ(oddMenus().size(), 12 * 3);
}

TEST_F(OddFile, WithValuesOfTenThousandCharactersCutsEach)
{
    const QByteArray value = '=' + QByteArray(10'000, 'x');
    loadThenAnother(section("SCENARIODATA", {"TITLE" + value}) +
                    section("DIVISION0", {"DIVISIONNAME" + value, "SIDE" + value, "SPEED" + value}) +
                    shipOf(0, 0, {"NAME" + value, "TYPE" + value}));
    EXPECT_EQ(oddMenus(), (QStringList{QStringLiteral("show B1"), QStringLiteral("enable"),
                                       QStringLiteral("add %1|%1").arg(QString(369, u'x'))}));
    EXPECT_LT(oddProfile().size(), 8'000);
}

TEST_F(OddFile, CutOffAnywhereIsReadUpToThere)
{
    const QByteArray whole = section("VERSION", {"VERSIONNUMBER=64"}) +
                             section("SCENARIODATA", {"TITLE=Convoy", "BLUE_TARGETBOX_X=-120.5",
                                                      "BLUE_TARGETBOX_Z=1E3", "BLUE_TARGETBOXDIM=9260"}) +
                             section("SCENARIOINFO", {"DIVISIONCNT=1"}) +
                             divisionOf(0, "Blue", {"FORMATIONSPACING=914.4"}) +
                             shipOf(0, 0, {"NAME=Cossack", "YARDSXPOSITION=-1E2", "YARDSZPOSITION=-1E2"});
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        load(whole.first(length));
        expectOnlyScratchFiles();
        const QString title = value("SCENARIODATA", "TITLE");
        EXPECT_TRUE(title == QStringLiteral("INVALID") || QStringLiteral("Convoy").startsWith(title))
            << length;
        EXPECT_LE(menus.calls.size(), 3);
        EXPECT_LE(shipTrack().size(), 1);
    }
    EXPECT_EQ(value("DIVISION0", "FORMATIONSPACING"), QStringLiteral("1000"));
    EXPECT_EQ(value("DIVISION0SHIP0", "ZPOSITION"), QStringLiteral("100"));
    EXPECT_EQ(target.x, -120);
    EXPECT_EQ(target.z, -1000);
}

TEST_F(OddFile, OfAHundredMegabytesIsRead)
{
    // More than a million keys, all of them different.
    std::string tail;
    tail.reserve(101'000'000);
    for (int i = 0; tail.size() < 100'000'000; ++i) {
        tail +=
            'k' + std::to_string(i) + "=................................................................\n";
    }
    loadThenAnother(section("SCENARIODATA", {"TITLE=Long"}) +
                    QByteArray::fromRawData(tail.data(), static_cast<qsizetype>(tail.size())));
    EXPECT_TRUE(oddProfile().contains("\r\nTITLE=Long\r\n"));
    EXPECT_EQ(oddProfile().count('['), 3);
}

struct Position
{
    const char* key;
    const char* text;
};

class HugeNumber : public OddFile, public ::testing::WithParamInterface<Position>
{
};

TEST_P(HugeNumber, EndsTheLoadWithAnOverflowAndTheNextOneWorks)
{
    const QByteArray line = QByteArray(GetParam().key) + '=' + GetParam().text;
    const bool isShips = line.startsWith("YARDS");
    const QByteArray file = isShips ? divisionOf(0, "Blue") + shipOf(0, 0, {"NAME=Cossack", line})
                                    : section("SCENARIODATA", {"BLUE_TARGETBOXDIM=0", line});
    expectError(RuntimeError::Overflow, [&] { load(file); });
    expectOnlyScratchFiles();
    loadThenAnother("");
}

INSTANTIATE_TEST_SUITE_P(
    OfATargetOrAShip, HugeNumber,
    ::testing::Values(Position{"BLUE_TARGETBOX_X", "2147483648"}, Position{"BLUE_TARGETBOX_X", "1E400"},
                      Position{"BLUE_TARGETBOX_Z", "2147483649"}, Position{"BLUE_TARGETBOX_Z", "1E400"},
                      Position{"RED_TARGETBOX_X", "-2147483649"}, Position{"RED_TARGETBOX_Z", "1E400"},
                      Position{"YARDSZPOSITION", "-1E400"},
                      Position{"YARDSZPOSITION", "9999999999E9999999999999999"}));

TEST_F(OddFile, WithHugeNumbersElsewhereIsRead)
{
    // They are texts here, and those who read them as numbers find them too large.
    loadThenAnother(section("SCENARIODATA", {"START_TIME_HOUR=1E999", "RED_TARGETBOX_Z=1E300"}) +
                    section("SCENARIOINFO", {"DIVISIONCNT=99999999999"}) +
                    divisionOf(0, "Blue", {"SPEED=1E999", "FLAGSHIPINDEX=-1E999"}) +
                    shipOf(0, 0, {"NAME=Cossack", "YARDSXPOSITION=1E999", "YARDSZPOSITION=1E300"}));
    EXPECT_TRUE(oddProfile().contains("\r\nDIVISIONCNT=99999999999\r\n"));
    EXPECT_TRUE(oddProfile().contains("\r\nRED_TARGETBOX_Z=-1E+300\r\n"));
    EXPECT_TRUE(oddProfile().contains("\r\nXPOSITION=1E999\r\n"));
    EXPECT_TRUE(oddProfile().contains("\r\nZPOSITION=-1E+300\r\n"));
}

/// While it lives, no block of 500 MB can be had. The address sanitizer needs room of its own, so there the
/// limit is one of its options, for the whole program.
class LittleMemory
{
#ifndef __SANITIZE_ADDRESS__
public:
    LittleMemory()
    {
        ::getrlimit(RLIMIT_AS, &m_usual);
        const rlimit lower{500'000'000, m_usual.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_AS, &lower), 0);
    }
    ~LittleMemory()
    {
        ::setrlimit(RLIMIT_AS, &m_usual);
    }
    LittleMemory(const LittleMemory&) = delete;
    LittleMemory& operator=(const LittleMemory&) = delete;

private:
    rlimit m_usual{};
#else
public:
    LittleMemory() {} // NOLINT(modernize-use-equals-default): else the object counts as unused
#endif
};

TEST_F(OddFile, BeyondAllMemoryIsRefusedWithItsName)
{
    const QString path = scenario("large.scn");
    writeScratchFile(path, "");
    constexpr qint64 size = 4'000'000'000; // of which the disk holds nothing
    ASSERT_TRUE(QFile::resize(path, size));
    const LittleMemory little;
    expectError(RuntimeError::OutOfMemory, [&] { readScenario(path, profile); });
}

TEST_F(OddFile, ThatIsNoFileIsRefusedWithItsName)
{
    const auto expectRefused = [this](RuntimeError::Number number, const QString& path) {
        try {
            readScenario(path, profile);
            ADD_FAILURE() << path.toStdString();
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), number);
            EXPECT_TRUE(error.text().contains(path)) << error.what();
        }
    };
    expectRefused(RuntimeError::PathAccessError, scenarioFolder());
    expectRefused(RuntimeError::FileNotFound, scenario("missing.scn"));
    expectRefused(RuntimeError::DeviceIoError, QStringLiteral("/dev/zero"));
}

} // namespace
} // namespace torvane::testing
