#pragma once

#include "platform/bilingual.h"

#include <QString>
#include <QStringView>

#include <array>
#include <span>
#include <utility>
#include <vector>

namespace torvane {

/// What the controls of the overview dialog show, exactly as they show it, hidden ones included.
struct OverviewValues
{
    QString title;
    QString description;
    QString mission;
    QString blueNavy;
    QString redNavy;
    QString movie;
    QString disengageA;
    QString disengageB;
    QString modifierA;
    QString modifierB;
    QString forceA; ///< "Force B" here means that the roles are swapped
    QString forceB;
    QString blueCondition;
    QString redCondition;
    QString victoryMods;

    bool operator==(const OverviewValues&) const = default;
};

/// What the controls of the environment dialog show, exactly as they show it, hidden ones included.
struct EnvironmentValues
{
    QString startTime;
    QString sunrise;
    QString sunset;
    QString month;
    QString year;
    QString airControl;
    QString location;
    QString visibility;
    QString radar;
    QString windSpeed;
    QString windDirection;
    QString moon;
    QString seaState;
    QString gameLength;
    QString gameLengthHour;
    QString gameLengthMinutes;
    QString rain;

    bool operator==(const EnvironmentValues&) const = default;
};

/// What both dialogs show.
struct ScenarioValues
{
    OverviewValues overview;
    EnvironmentValues environment;

    bool operator==(const ScenarioValues&) const = default;
};

/// Where the value of a key comes from when the overview is written. `FixedUnlessEnvironment` is a constant
/// there, but the environment dialog writes what its control holds.
enum class ScenarioKeySource { Fixed, FixedUnlessEnvironment, Overview, Environment };

/// One key of the scenario section. The default is what is stored; `encode` is null for fixed keys, which
/// store their default always.
struct ScenarioKey
{
    QStringView name;
    Bilingual defaultValue;
    ScenarioKeySource source;
    QString (*encode)(const ScenarioValues& values, Language language);
};
/// The keys in the order in which the overview writes them.
extern const std::array<ScenarioKey, 50> scenarioKeys;

/// One key that the dialogs read back: what the overview does with it, and what the environment dialog does
/// with it. Where the overview has nothing of its own it does the same as the environment dialog; a null on
/// the other side means that the environment dialog ignores the key.
struct LoadedKey
{
    QStringView name;
    void (*overview)(ScenarioValues& values, const QString& stored, Language language);
    void (*environment)(EnvironmentValues& values, const QString& stored, Language language);
};
/// The 31 keys that the overview reads, in order.
std::span<const LoadedKey> overviewKeys();
/// The 30 keys that the environment dialog reads, in order: all but the movie.
std::span<const LoadedKey> environmentKeys();

/// A key and the value to store for it, in one line.
using KeyValue = std::pair<QString, QString>;

/// What both dialogs show for a new scenario.
ScenarioValues scenarioDefaults(Language language);

/// All 50 keys in order, as the overview writes them. Never throws.
std::vector<KeyValue> encodeScenario(const ScenarioValues& values, Language language);
/// The 23 keys of the environment dialog in order. Never throws.
std::vector<KeyValue> encodeEnvironment(const EnvironmentValues& values, Language language);

/// Takes a stored value into what both dialogs show, as the overview does when it loads. "INVALID" is a text
/// like any other. Other keys than the overview's change nothing.
void applyOverviewKey(QStringView key, const QString& stored, ScenarioValues& values, Language language);
/// The same as the environment dialog does it, on its own controls.
void applyEnvironmentKey(QStringView key, const QString& stored, EnvironmentValues& values,
                         Language language);

/// Whether a stored `BLUE_FORCE_TYPE` says that Force B holds the first role, as the overview asks when it
/// comes to the front. A missing value doesn't.
bool rolesSwapped(QStringView blueForceType);

} // namespace torvane
