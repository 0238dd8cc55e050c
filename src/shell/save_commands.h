#pragma once

namespace torvane {

class Editor;

/// The command Save: checks the scenario, then writes it under the overview's title. Every rule that is
/// broken is shown in a box, and nothing is written. A failure leaves the file that was there as it was and
/// is not shown.
void saveScenario(Editor& editor);

/// The command Save As: writes the scenario, unchecked, under a name that the user chooses, as it was typed.
/// A failure leaves the file that was there as it was and is shown; so is a cancelled choice.
void saveScenarioAs(Editor& editor);

} // namespace torvane
