#include "store/target_area.h"

#include "store/working_profile.h"

namespace torvane {

namespace {

// Its own section: a save copies key by key and never comes here.
constexpr QByteArrayView section{"TARGETAREA"};
constexpr QByteArrayView xKey{"X"};
constexpr QByteArrayView zKey{"Z"};
constexpr QByteArrayView dimKey{"DIM"};

int numberOf(const Profile& profile, QByteArrayView key)
{
    return GetIniKey(profile, section, key).toByteArray().toInt();
}

} // namespace

void rememberTargetArea(WorkingProfile& profile, const TargetArea& target)
{
    const Profile& stored = profile.parsed();
    const TargetArea unplaced{.dim = target.dim};
    if (stored.isEmpty() || rememberedTargetArea(stored).value_or(unplaced) == target) {
        return;
    }
    profile.write(section, xKey, QByteArray::number(target.x));
    profile.write(section, zKey, QByteArray::number(target.z));
    profile.write(section, dimKey, QByteArray::number(target.dim));
}

std::optional<TargetArea> rememberedTargetArea(const Profile& profile)
{
    if (!profile.value(section, dimKey)) {
        return std::nullopt;
    }
    return TargetArea{numberOf(profile, xKey), numberOf(profile, zKey), numberOf(profile, dimKey)};
}

} // namespace torvane
