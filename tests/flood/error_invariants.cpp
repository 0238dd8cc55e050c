#include "flood/invariants.h"
#include "platform/error_names.h"

#include <algorithm>

namespace torvane::testing {

namespace {

/// Errors of the platform that an author can meet, and why they are no fault of the program.
struct Excuse
{
    RuntimeError::Number number;
    const char* text; ///< the box has it; empty fits all
    Origin origin;    ///< `Foreign`: only in a scenario from a damaged file
    const char* reason;
};

constexpr Excuse excuses[] = {
    {RuntimeError::Overflow, "", Origin::Made,
     "a number that was typed, or a place on the map, beyond its bits"},
    {RuntimeError::FileNotFound, "missing.scn", Origin::None, "a file that was chosen and is not there"},
    {RuntimeError::FileNotFound, "ShipTrack.bmm", Origin::Foreign,
     "the load of a damaged file that ended half way left no list of picked ships"},
    {RuntimeError::SubscriptOutOfRange, "", Origin::Foreign,
     "a value of a damaged file without a place in its table"},
    {RuntimeError::NoCurrentRecord, "", Origin::Foreign, "a ship of a damaged file that the catalogue lacks"},
    {RuntimeError::InvalidProcedureCall, "", Origin::Foreign, "a damaged file"},
};

} // namespace

int errorNumberOf(const MessageBox& box)
{
    if (box.icon != MessageBox::Icon::Critical) {
        return 0;
    }
    const auto named = std::ranges::find_if(errorNames, [&](const ErrorName& name) {
        return box.text.startsWith(name.name.in(Language::English)) ||
               box.text.startsWith(name.name.in(Language::German));
    });
    return named == errorNames.end() ? -1 : int(named->number);
}

QString excuseFor(const MessageBox& box, Origin origin)
{
    const int number = errorNumberOf(box);
    for (const Excuse& excuse : excuses) {
        if (int(excuse.number) == number && box.text.contains(QLatin1StringView(excuse.text)) &&
            (excuse.origin != Origin::Foreign || origin == Origin::Foreign)) {
            return QString::fromLatin1(excuse.reason);
        }
    }
    return {};
}

} // namespace torvane::testing
