#include "overview/scenario_data.h"

#include "overview/missions.h"
#include "overview/overview_rules.h"
#include "overview/overview_texts.h"
#include "overview/scenario_coding.h"

#include <algorithm>

namespace torvane {
namespace {

using namespace Qt::StringLiterals;
using Field = QString EnvironmentValues::*;
using OverviewField = QString OverviewValues::*;
using Source = ScenarioKeySource;

// Encoders: one row of the key table each, made from what they read and how they code it.

template <Field field>
QString shown(const ScenarioValues& values, Language)
{
    return values.environment.*field;
}
template <Field field>
QString trimmed(const ScenarioValues& values, Language)
{
    return (values.environment.*field).trimmed();
}
template <OverviewField field>
QString trimmedOverview(const ScenarioValues& values, Language)
{
    return (values.overview.*field).trimmed();
}
template <Field field>
QString firstTwo(const ScenarioValues& values, Language)
{
    return storedNumber((values.environment.*field).left(2));
}
template <Field field>
QString lastTwo(const ScenarioValues& values, Language)
{
    return storedNumber((values.environment.*field).right(2));
}
template <Field field, QString (*coding)(const QString&, Language)>
QString coded(const ScenarioValues& values, Language language)
{
    return coding(values.environment.*field, language);
}
template <OverviewField field, QString (*coding)(const QString&, Language)>
QString codedOverview(const ScenarioValues& values, Language language)
{
    return coding(values.overview.*field, language);
}

using E = EnvironmentValues;
using O = OverviewValues;

} // namespace

constexpr std::array<ScenarioKey, 50> scenarioKeys{{
    {u"TITLE", {"Title", "Titel"}, Source::Overview, trimmedOverview<&O::title>},
    {u"DESCRIPTION_LINECNT", inBoth("1"), Source::Fixed, nullptr},
    {u"DESCRIPTION_LINE0", {"None", "Keine"}, Source::Overview, trimmedOverview<&O::description>},
    {u"START_TIME", inBoth("12:30"), Source::Environment, shown<&E::startTime>},
    {u"START_TIME_HOUR", inBoth("12"), Source::Environment, firstTwo<&E::startTime>},
    {u"START_TIME_MINUTE", inBoth("30"), Source::Environment, lastTwo<&E::startTime>},
    {u"SUNRISE", inBoth("06:30"), Source::Environment, shown<&E::sunrise>},
    {u"SUNSET", inBoth("19:30"), Source::Environment, shown<&E::sunset>},
    {u"SUNRISE_HOUR", inBoth("6"), Source::Environment, firstTwo<&E::sunrise>},
    {u"SUNRISE_MINUTE", inBoth("30"), Source::Environment, lastTwo<&E::sunrise>},
    {u"SUNSET_HOUR", inBoth("19"), Source::Environment, firstTwo<&E::sunset>},
    {u"SUNSET_MINUTE", inBoth("30"), Source::Environment, lastTwo<&E::sunset>},
    {u"MONTH", inBoth("January"), Source::Environment, coded<&E::month, storedMonth>},
    {u"YEAR", inBoth("1939"), Source::Environment, shown<&E::year>},
    {u"BLUEBRIEFING_LINECNT", inBoth("1"), Source::Fixed, nullptr},
    {u"BLUEBRIEFING_LINE0", inBoth("Unavailable"), Source::Fixed, nullptr},
    {u"REDBRIEFING_LINECNT", inBoth("1"), Source::Fixed, nullptr},
    {u"REDBRIEFING_LINE0", inBoth("Unavailable"), Source::Fixed, nullptr},
    {u"V.CONDITION_BLUE", inBoth("None"), Source::Fixed, nullptr},
    {u"V.CONDITION_RED", inBoth("None"), Source::Fixed, nullptr},
    {u"AIR_SUPERIORITY", inBoth("2"), Source::Environment, coded<&E::airControl, storedAirControl>},
    {u"LOCATION", inBoth("North Atlantic"), Source::Environment, coded<&E::location, storedLocation>},
    {u"VISIBILITY", inBoth("100"), Source::Environment, coded<&E::visibility, storedVisibility>},
    {u"RADARCONDITIONS", inBoth("100"), Source::Environment, coded<&E::radar, storedRadar>},
    {u"WIND_SPEED", inBoth("1"), Source::Environment, coded<&E::windSpeed, storedWindSpeed>},
    {u"WIND_DIRECTION", inBoth("360"), Source::Environment, trimmed<&E::windDirection>},
    {u"VP_MODS", inBoth("None"), Source::Fixed, nullptr},
    {u"MOONPHASE", inBoth("None"), Source::FixedUnlessEnvironment, trimmed<&E::moon>},
    {u"SEASTATE", inBoth("1"), Source::Environment, trimmed<&E::seaState>},
    {u"GAMELENGTH", inBoth("2:00"), Source::Environment, coded<&E::gameLength, storedLength>},
    {u"GAMELENGTH_HOUR", inBoth("2"), Source::Environment, coded<&E::gameLength, storedLengthHour>},
    {u"GAMELENGTH_MINUTE", inBoth("00"), Source::Environment, coded<&E::gameLength, storedLengthMinute>},
    {u"BLUE_NAVY", inBoth("KM"), Source::Overview, codedOverview<&O::blueNavy, storedNavy>},
    {u"RED_NAVY", inBoth("RN"), Source::Overview, codedOverview<&O::redNavy, storedNavy>},
    {u"RAIN", inBoth("0"), Source::Environment, coded<&E::rain, storedRain>},
    {u"DDTRANSPORTS", inBoth("0"), Source::Overview, codedOverview<&O::mission, storedTransports>},
    {u"BLUE_TARGETBOX_X", inBoth("0"), Source::Fixed, nullptr},
    {u"BLUE_TARGETBOX_Z", inBoth("0"), Source::Fixed, nullptr},
    {u"BLUE_TARGETBOXDIM", inBoth("0"), Source::Fixed, nullptr},
    {u"RED_TARGETBOX_X", inBoth("0"), Source::Fixed, nullptr},
    {u"RED_TARGETBOX_Z", inBoth("0"), Source::Fixed, nullptr},
    {u"RED_TARGETBOX_DIM", inBoth("0"), Source::Fixed, nullptr},
    {u"BLUE_DISENGAGE_HEADING", inBoth("180"), Source::Overview, trimmedOverview<&O::disengageA>},
    {u"RED_DISENGAGE_HEADING", inBoth("180"), Source::Overview, trimmedOverview<&O::disengageB>},
    {u"BATTLETYPE", inBoth("0"), Source::Overview, codedOverview<&O::mission, storedMission>},
    {u"BLUE_VICTORY_MODS", inBoth("1.00"), Source::Overview, trimmedOverview<&O::modifierA>},
    {u"RED_VICTORY_MODS", inBoth("1.00"), Source::Overview, trimmedOverview<&O::modifierB>},
    {u"BLUE_FORCE_TYPE", inBoth("0"), Source::Overview, codedOverview<&O::forceA, storedBlueForce>},
    {u"RED_FORCE_TYPE", inBoth("1"), Source::Overview, codedOverview<&O::forceA, storedRedForce>},
    {u"MOVIE", inBoth("0"), Source::Overview, codedOverview<&O::movie, storedMovie>},
}};

namespace {

// Decoders: the other way.

template <OverviewField field>
void show(ScenarioValues& values, const QString& stored, Language)
{
    values.overview.*field = stored;
}
template <OverviewField field, QString (*shownAs)(const QString&, Language)>
void showAs(ScenarioValues& values, const QString& stored, Language language)
{
    values.overview.*field = shownAs(stored, language);
}
template <Field field>
void show(EnvironmentValues& values, const QString& stored, Language)
{
    values.*field = stored;
}
template <Field field, QString (*shownAs)(const QString&, Language)>
void showAs(EnvironmentValues& values, const QString& stored, Language language)
{
    values.*field = shownAs(stored, language);
}
/// For lists: a value that is none of theirs leaves them alone.
template <OverviewField field, QString (*shownAs)(const QString&, Language)>
void select(ScenarioValues& values, const QString& stored, Language language)
{
    const QString caption = shownAs(stored, language);
    if (!caption.isEmpty()) {
        values.overview.*field = caption;
    }
}

void showForces(ScenarioValues& values, const QString& stored, Language language)
{
    values.overview.forceA = (stored == "0"_L1 ? forceA : forceB).in(language);
    values.overview.forceB = (stored == "0"_L1 ? forceB : forceA).in(language);
}
void showNoMods(ScenarioValues& values, const QString&, Language)
{
    values.overview.victoryMods = u"None"_s;
}
void showNoMoon(ScenarioValues& values, const QString&, Language)
{
    values.environment.moon = u"None"_s;
}

constexpr std::array<LoadedKey, 31> loadedKeys{{
    {u"TITLE", show<&O::title>, nullptr},
    {u"DESCRIPTION_LINE0", show<&O::description>, nullptr},
    {u"START_TIME", nullptr, show<&E::startTime>},
    {u"SUNRISE", nullptr, show<&E::sunrise>},
    {u"SUNSET", nullptr, show<&E::sunset>},
    {u"MONTH", nullptr, showAs<&E::month, shownMonth>},
    {u"YEAR", nullptr, show<&E::year>},
    {u"V.CONDITION_BLUE", show<&O::blueCondition>, nullptr},
    {u"V.CONDITION_RED", show<&O::redCondition>, nullptr},
    {u"AIR_SUPERIORITY", nullptr, showAs<&E::airControl, shownAirControl>},
    {u"LOCATION", nullptr, showAs<&E::location, shownLocation>},
    {u"VISIBILITY", nullptr, showAs<&E::visibility, shownPercent>},
    {u"RADARCONDITIONS", nullptr, showAs<&E::radar, shownPercent>},
    {u"WIND_SPEED", nullptr, show<&E::windSpeed>},
    {u"WIND_DIRECTION", nullptr, show<&E::windDirection>},
    {u"VP_MODS", showNoMods, nullptr},
    {u"MOONPHASE", showNoMoon, show<&E::moon>},
    {u"SEASTATE", nullptr, show<&E::seaState>},
    {u"GAMELENGTH", nullptr, show<&E::gameLength>},
    {u"GAMELENGTH_HOUR", nullptr, show<&E::gameLengthHour>},
    {u"GAMELENGTH_MINUTE", nullptr, show<&E::gameLengthMinutes>},
    {u"BLUE_NAVY", select<&O::blueNavy, shownNavy>, nullptr},
    {u"RED_NAVY", select<&O::redNavy, shownNavy>, nullptr},
    {u"RAIN", nullptr, showAs<&E::rain, shownRain>},
    {u"BLUE_DISENGAGE_HEADING", show<&O::disengageA>, nullptr},
    {u"RED_DISENGAGE_HEADING", show<&O::disengageB>, nullptr},
    {u"BATTLETYPE", select<&O::mission, shownMission>, nullptr},
    {u"BLUE_VICTORY_MODS", show<&O::modifierA>, nullptr},
    {u"RED_VICTORY_MODS", show<&O::modifierB>, nullptr},
    {u"BLUE_FORCE_TYPE", showForces, nullptr},
    {u"MOVIE", showAs<&O::movie, shownMovie>, nullptr},
}};

const LoadedKey* loadedKey(std::span<const LoadedKey> keys, QStringView name)
{
    const auto row = std::ranges::find_if(keys, [&](const LoadedKey& key) { return key.name == name; });
    return row == keys.end() ? nullptr : &*row;
}

} // namespace

std::span<const LoadedKey> overviewKeys()
{
    return loadedKeys;
}

std::span<const LoadedKey> environmentKeys()
{
    return std::span(loadedKeys).first(30);
}

ScenarioValues scenarioDefaults(Language language)
{
    ScenarioValues values;
    for (const ScenarioKey& key : scenarioKeys) {
        applyOverviewKey(key.name, key.defaultValue.in(language), values, language);
    }
    return values;
}

std::vector<KeyValue> encodeScenario(const ScenarioValues& values, Language language)
{
    std::vector<KeyValue> pairs;
    for (const ScenarioKey& key : scenarioKeys) {
        const bool fixed = key.source == Source::Fixed || key.source == Source::FixedUnlessEnvironment;
        pairs.emplace_back(key.name.toString(), fixed ? key.defaultValue.in(language)
                                                      : oneParagraph(key.encode(values, language)));
    }
    return pairs;
}

std::vector<KeyValue> encodeEnvironment(const EnvironmentValues& values, Language language)
{
    const ScenarioValues all{{}, values};
    std::vector<KeyValue> pairs;
    for (const ScenarioKey& key : scenarioKeys) {
        if (key.source == Source::Environment || key.source == Source::FixedUnlessEnvironment) {
            pairs.emplace_back(key.name.toString(), oneParagraph(key.encode(all, language)));
        }
    }
    return pairs;
}

void applyOverviewKey(QStringView key, const QString& stored, ScenarioValues& values, Language language)
{
    const LoadedKey* row = loadedKey(overviewKeys(), key);
    if (row == nullptr) {
        return;
    }
    if (row->overview != nullptr) {
        row->overview(values, stored, language);
    } else {
        row->environment(values.environment, stored, language);
    }
}

void applyEnvironmentKey(QStringView key, const QString& stored, EnvironmentValues& values, Language language)
{
    const LoadedKey* row = loadedKey(environmentKeys(), key);
    if (row != nullptr && row->environment != nullptr) {
        row->environment(values, stored, language);
    }
}

bool rolesSwapped(QStringView blueForceType)
{
    return blueForceType == "1"_L1;
}

} // namespace torvane
