#pragma once

namespace torvane {

/// The language of the interface, chosen when a program is built. What is stored is neutral.
enum class Language { German, English };

} // namespace torvane
