#pragma once

#include "scenario_file/save_texts.h"
#include "store/target_area.h"

#include <QStringView>

#include <vector>

namespace torvane {

class WorkingProfile;

/// What a scenario must keep to before Save writes it.
enum class ValidationRule { Title, Mission, Divisions };

/// A rule that is broken, and the message that says so.
struct Finding
{
    ValidationRule rule;
    SaveText message;

    bool operator==(const Finding&) const = default;
};

/// The rules that the scenario breaks, in the order in which they are checked. The title's first character
/// alone is looked at; a convoy with a convoying division and a transport with a ship that is no destroyer
/// end the check there. Throws Overflow for a division count beyond 16 bits.
std::vector<Finding> validateScenario(const WorkingProfile& profile, const TargetArea& target);

/// Whether a file named after the title, trimmed, lies in the scenario folder, in sight, and can be copied to
/// other systems' folders: no separator or control character, no leading dot, no name of a device, not empty,
/// not too long.
bool canNameScenarioFile(QStringView title);

} // namespace torvane
