#include "platform/code_page.h"
#include "platform/number_text.h"
#include "scenario_file/load_fixture.h"
#include "scenario_file/scenario_format.h"
#include "store/profile_keys.h"
#include "store/units.h"

#include <random>

namespace torvane::testing {
namespace {

/// Makes the scenarios that an author could have made.
class RandomScenario
{
public:
    explicit RandomScenario(unsigned seed) : m_random(seed) {}

    QByteArray profile()
    {
        QByteArray bytes = "[SCENARIODATA]\r\n";
        for (const QStringView key : scenarioDataKeys) {
            // The overview writes 0 for the target: the area on the map is put into the file at the save.
            bytes +=
                toCodePage(key) + '=' + (key.contains(u"TARGETBOX") ? QByteArray("0") : value(key)) + "\r\n";
        }
        const int divisions = number(0, divisionSections);
        bytes += "[SCENARIOINFO]\r\nDIVISIONCNT=" + QByteArray::number(divisions) + "\r\n";
        for (int n = 0; n < divisions; ++n) {
            bytes += section(divisionSection(n), divisionKeys);
            for (int m = 0; m < shipSections; ++m) {
                if (number(0, 3) == 0) {
                    bytes += section(shipSection(n, m), shipKeys);
                }
            }
        }
        return bytes;
    }
    TargetArea target() { return {.x = number(-200'000, 200'000), .z = number(-200'000, 200'000)}; }
    int number(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_random); }

private:
    template <typename Keys>
    QByteArray section(const QString& name, const Keys& keys)
    {
        QByteArray bytes = '[' + toCodePage(name) + "]\r\n";
        for (const QStringView key : keys) {
            bytes += toCodePage(key) + '=' + value(key) + "\r\n";
        }
        return bytes;
    }
    QByteArray value(QStringView key)
    {
        if (key == u"AIR_SUPERIORITY") {
            return QByteArray::number(number(2, 5));
        }
        if (key == u"SIDE") {
            return number(0, 1) == 0 ? "Blue" : "Red";
        }
        if (key == u"FORMATIONSPACING") {
            return toCodePage(spacingTable.at(static_cast<std::size_t>(number(0, 7))).yards.toString());
        }
        if (key == u"NAME") {
            return number(0, 5) == 0 ? QByteArray("NO SHIP") : text();
        }
        if (key.endsWith(u"POSITION")) {
            return position();
        }
        const bool isText = key == u"TITLE" || key == u"DESCRIPTION_LINE0" || key == u"SHORTNAME" ||
                            key == u"CLASS" || key == u"DIVISIONNAME";
        return isText ? text() : QByteArray::number(number(-1, 360));
    }
    /// Any characters of the code page, with no quote or blank at either end.
    QByteArray text()
    {
        QByteArray bytes("a");
        for (int left = number(0, 60); left > 0; --left) {
            const int code = number(32, 255);
            bytes += static_cast<char>(code == 127 ? 'b' : code);
        }
        return bytes + 'z';
    }
    QByteArray position()
    {
        switch (number(0, 3)) {
        case 0:
            return QByteArray::number(number(-300'000, 300'000));
        case 1:
            return "0.000000";
        case 2:
            return QByteArray::number(number(-3'000'000, 3'000'000) / 7.0, 'g', 17);
        default:
            return toCodePage(textOf(number(-3'000'000, 3'000'000) / 8.0));
        }
    }

    std::mt19937 m_random;
};

class RoundTrip : public LoadedStore
{
protected:
    /// Every value that a reader finds, by section and key.
    QHash<QString, QString> values() const
    {
        QHash<QString, QString> found;
        const auto take = [&](FileSection kind, const QString& section) {
            for (const FileKey& key : keysOf(kind)) {
                found.insert(section + u'.' + key.name.toString(), profile.GetIniKey(section, key.name));
            }
        };
        take(FileSection::ScenarioData, scenarioDataSection.toString());
        take(FileSection::ScenarioInfo, scenarioInfoSection.toString());
        for (int n = 0; n < divisionSections; ++n) {
            take(FileSection::Division, divisionSection(n));
            for (int m = 0; m < shipSections; ++m) {
                if (profile.GetIniKey(shipSection(n, m), u"NAME") != noShip) {
                    take(FileSection::Ship, shipSection(n, m));
                }
            }
        }
        return found;
    }
    static bool isSameText(const QString& key, const QString& before, const QString& after)
    {
        if (before == invalidValue || !key.endsWith(QStringLiteral("ZPOSITION"))) {
            return before == after;
        }
        // Same number, in the form that numbers have.
        return after == textOf(numberValue(before));
    }
};

TEST_F(RoundTrip, OfAnyScenarioKeepsItsTextsAndThenItsBytes)
{
    for (unsigned seed = 1; seed <= 15; ++seed) {
        RandomScenario random(seed);
        store(random.profile());
        target = random.target();
        const TargetArea area = target;
        const QHash<QString, QString> before = values();
        const QByteArray first = saved();
        load(first);
        EXPECT_EQ(target, area) << seed;
        const QHash<QString, QString> after = values();
        for (auto it = before.cbegin(); it != before.cend(); ++it) {
            if (!it.key().contains(QStringLiteral("BLUE_TARGETBOX"))) {
                EXPECT_TRUE(
                    isSameText(it.key(), it.value(), after.value(it.key(), QStringLiteral("INVALID"))))
                    << "seed " << seed << ": " << it.key().toStdString() << ": " << it.value().toStdString();
            }
        }
        EXPECT_EQ(saved(), first) << seed;
    }
}

TEST_F(RoundTrip, WithAnAreaOfForceBKeepsItsBytesFromTheSecondSaveOn)
{
    for (unsigned seed = 1; seed <= 10; ++seed) {
        RandomScenario random(seed);
        store(random.profile());
        target = random.target();
        const QByteArray first = saved(u"Streitkraft A");
        const QByteArray z = "\r\nRED_TARGETBOX_Z=" + QByteArray::number(-target.z) + "\r\n";
        ASSERT_TRUE(first.contains(z));
        load(first);
        EXPECT_EQ(target.z, 0) << "its z is not read back";
        const QByteArray second = saved(u"Streitkraft A");
        EXPECT_EQ(second, QByteArray(first).replace(z, "\r\nRED_TARGETBOX_Z=0\r\n"));
        load(second);
        EXPECT_EQ(saved(u"Streitkraft A"), second);
    }
}

TEST_F(RoundTrip, TurnsTheSignOfATargetThatNoSaveReplacesEachTime)
{
    load(readWholeFile(QStringLiteral(KEPT_SCENARIOS "three_divisions_blue_area.scn")));
    const QByteArray odd = saved();
    EXPECT_TRUE(odd.contains("\r\nRED_TARGETBOX_Z=-88\r\n"));
    load(odd);
    const QByteArray even = saved();
    EXPECT_EQ(even, QByteArray(odd).replace("RED_TARGETBOX_Z=-88", "RED_TARGETBOX_Z=88"));
    load(even);
    EXPECT_EQ(saved(), odd);
}

TEST_F(RoundTrip, ThirtyTimesLeavesTheFileAsTheFirstSaveMadeIt)
{
    RandomScenario random(99);
    store(random.profile());
    target = random.target();
    const QByteArray first = saved();
    for (int i = 0; i < 30; ++i) {
        load(saved());
    }
    EXPECT_EQ(saved(), first);
}

} // namespace
} // namespace torvane::testing
