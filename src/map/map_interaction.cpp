#include "map/map_interaction.h"

#include "platform/number_text.h"

#include <cmath>

namespace torvane {

namespace {

constexpr int crossArm = 2; // pixels

} // namespace

void applyRingKey(MapToggles& toggles, const QString& typed)
{
    const QString key = typed.toUpper();
    const bool oneRing = key == u"B" || key == u"C" || key == u"D";
    toggles.ringFilterOn = oneRing ? -1 : 0;
    toggles.ringFilterKey = oneRing || key == u"F" ? key : QString();
}

void MeasureTool::switchOff()
{
    m_on = false;
    m_state = State::Idle;
}

void MeasureTool::click(double x, double y)
{
    const PixelPoint point{.x = toInt32(x), .y = toInt32(y)};
    if (m_state == State::Idle) {
        m_start = point;
        m_state = State::FirstPoint;
    } else {
        m_end = point;
        m_state = State::SecondPoint;
    }
}

MarkList MeasureTool::crossMarks(double x, double y) const
{
    const PixelPoint at{.x = toInt32(x), .y = toInt32(y)};
    const auto arm = [&](int dx, int dy) {
        return LineMark{
            .from = {at.x - dx, at.y - dy}, .to = {at.x + dx, at.y + dy}, .colour = mapColours::yellow};
    };
    const QString letter = m_state == State::FirstPoint ? QStringLiteral("A") : QStringLiteral("B");
    return {arm(crossArm, 0), arm(0, crossArm),
            TextMark{.at = at, .text = letter, .colour = mapColours::yellow}};
}

std::int32_t MeasureTool::distance(double dx, double dy, float scale) const
{
    const std::int32_t pixels = toInt32(std::sqrt(roundEven(dx * dx) + roundEven(dy * dy)));
    return toInt32(double{scale} * pixels);
}

std::int32_t MeasureTool::yardsTo(double x, double y, float scale) const
{
    return distance(m_start.x - x, m_start.y - y, scale);
}

std::int32_t MeasureTool::yards(float scale) const
{
    return yardsTo(m_end.x, m_end.y, scale);
}

MarkList MeasureTool::finish(float scale)
{
    const auto middle = [](std::int32_t start, std::int32_t end) {
        return toInt32((double{1} * start - end) / 2 + end);
    };
    const TextMark length{.at = {middle(m_start.x, m_end.x), middle(m_start.y, m_end.y)},
                          .text = QString::number(yards(scale)) + yardsUnit,
                          .colour = mapColours::white};
    m_state = State::Idle;
    return {length, LineMark{.from = m_start, .to = m_end, .colour = mapColours::yellow}};
}

QString distanceText(std::int32_t yards)
{
    return groupedThousands(yards) + yardsUnit;
}

} // namespace torvane
