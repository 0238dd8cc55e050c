#pragma once

#include "map/map_geometry.h"
#include "overview/environment_rules.h"
#include "platform/language.h"
#include "store/side.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace torvane {

/// A text that an author words in both languages.
struct PlannedText
{
    QString english;
    QString german;

    const QString& in(Language language) const { return language == Language::German ? german : english; }
};

/// What the overview dialog asks about a force.
struct ForcePlan
{
    QString navy;             ///< "KM", "USN", "IJN" or "RN"
    int disengageHeading = 0; ///< degrees
};

/// What the environment dialog asks. The sea follows the wind.
struct EnvironmentPlan
{
    QString month; ///< in English
    int year = 0;
    ClockTime start{};
    ClockTime sunrise{};
    ClockTime sunset{};
    ClockTime length{};    ///< of the game
    int wind = 0;          ///< knots
    int windDirection = 0; ///< degrees
    int visibility = 0;    ///< percent
    int radar = 0;         ///< percent
    bool rain = false;
    QString location; ///< in English
};

/// A division as its author means it. Its anchor is the head of a column, the left end of a line of bearing,
/// the middle of a convoy.
struct DivisionPlan
{
    Side side = Side::Blue;
    QStringList ships;
    int flagship = 0;  ///< place in the division, from 0
    QString formation; ///< "Column", "Line of Bearing" or "Convoy"
    int heading = 0;   ///< degrees
    int spacing = 0;   ///< yards, one of the eight that can be chosen
    int speed = 0;     ///< knots
    bool encumbered = false;
    Yards anchor;
    int level = 0; ///< of zoom, at which the author places it: 0 to 10, as captions count
};

/// A scenario as its author means it, before it is made.
struct ScenarioPlan
{
    QString name; ///< of its file, without folder and ending
    PlannedText title;
    PlannedText description;
    QString mission; ///< in English
    int movie = 0;   ///< 0 to 4
    ForcePlan forceA;
    ForcePlan forceB;
    EnvironmentPlan environment;
    int level = 0; ///< of zoom that shows all of it
    std::vector<DivisionPlan> divisions;
    std::optional<Yards> target; ///< middle of the target area
};

/// The plan in a JSON file. Throws std::runtime_error, with file and key, where one is missing or of another
/// kind, and where a key stands there that nothing reads.
ScenarioPlan readScenarioPlan(const QString& path);

/// The plans of all JSON files of a folder, by name. Throws as above, and if there is none.
std::vector<ScenarioPlan> readScenarioPlans(const QString& folder);

} // namespace torvane
