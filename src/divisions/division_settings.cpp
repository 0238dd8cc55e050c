#include "divisions/division_settings.h"

#include "overview/typed_values.h"
#include "platform/number_text.h"
#include "store/profile_keys.h"
#include "store/working_profile.h"

namespace torvane {

namespace {

constexpr double fullCircle = 360;
constexpr int markMargin = 3; // pixels between the ends of the mark and the edge

} // namespace

QString turnedHeading(QStringView text, int degrees)
{
    const double heading = roundEven(boundedValue(text) + degrees);
    if (heading < 0) {
        return textOf(fullCircle);
    }
    return heading > fullCircle ? QStringLiteral("0") : textOf(heading);
}

std::optional<QString> typedHeading(QStringView text)
{
    const double heading = integerPart(text);
    if (heading < 0 || heading > fullCircle) {
        return std::nullopt;
    }
    return textOf(heading);
}

HeadingMark headingMark(PixelOffset centre, std::int16_t heading)
{
    const std::int32_t half = centre.x - markMargin;
    return {.bow = turnedAbout(centre, {.x = centre.x, .z = centre.z - half}, heading),
            .stern = turnedAbout(centre, {.x = centre.x, .z = centre.z + half}, heading)};
}

PixelOffset pictureCentre(int width, int height)
{
    return {.x = toInt32(width / 2.0), .z = toInt32(height / 2.0)};
}

std::optional<Side> transportingForce(const WorkingProfile& profile)
{
    if (numberValue(profile.GetIniKey(scenarioDataSection, u"DDTRANSPORTS")) != 1) {
        return std::nullopt;
    }
    const QString blueForceType = profile.GetIniKey(scenarioDataSection, u"BLUE_FORCE_TYPE");
    if (blueForceType == u"0") {
        return Side::Blue;
    }
    return blueForceType == u"1" ? std::optional(Side::Red) : std::nullopt;
}

} // namespace torvane
