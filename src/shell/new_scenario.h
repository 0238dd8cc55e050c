#pragma once

namespace torvane {

class Editor;

/// The command New: gives up the scenario under edit without a question, readies the store and opens the
/// overview. Throws RuntimeError, naming the folder or file, where the work folder can't be written: then the
/// old scenario stands as it was, or, if it is already gone, the menus are those of a program without one.
void newScenario(Editor& editor);

/// Deletes the working profile after the store could not be cleared: nothing that a later step or run could
/// take for a scenario. Does nothing where that fails too.
void dropProfile(Editor& editor);

} // namespace torvane
