#pragma once

namespace torvane {

/// Takes the drawings of the editor into the program, to be found as ":/icons/...". Once is enough, more does
/// no harm.
void registerIcons();

} // namespace torvane
