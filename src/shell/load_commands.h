#pragma once

namespace torvane {

class Editor;

/// The command Load: replaces the scenario under edit, without a question, by one from a file that the user
/// chooses, and opens its overview. A file that can't be opened is shown in a box and changes nothing. A
/// later failure is not shown and leaves the store as far as it got.
void loadScenario(Editor& editor);

} // namespace torvane
