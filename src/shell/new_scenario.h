#pragma once

namespace torvane {

class Editor;

/// The command New: gives up the scenario under edit without a question, readies the store and opens the
/// overview. Throws RuntimeError, naming the folder or file, where the work folder can't be written: then the
/// old scenario stands as it was, or, if it is already gone, the menus are those of a program without one.
void newScenario(Editor& editor);

} // namespace torvane
