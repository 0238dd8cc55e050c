#pragma once

#include "platform/bilingual.h"

namespace torvane {

// How the overview names the navy of a force. The ship dialog finds a force's ships by these texts.

inline constexpr Bilingual navyKM = inBoth("Kriegsmarine (KM)");
inline constexpr Bilingual navyUSN = inBoth("United States Navy (USN)");
inline constexpr Bilingual navyIJN{"Imperial Japanese Navy (IJN)", "Japanische Marine (IJN)"};
inline constexpr Bilingual navyRN = inBoth("Royal Navy (RN)");

} // namespace torvane
