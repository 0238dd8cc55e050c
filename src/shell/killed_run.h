#pragma once

namespace torvane {

class Editor;

/// Brings the scenario of a run that did not end, killed or cut off, into the scenario folder, before the
/// clean-up of a start takes its profile away. Shows a box only where that can't be done: the profile then
/// lies in the work folder under another name, which the box says, and the next start tries again.
void recoverKilledRun(Editor& editor);

} // namespace torvane
