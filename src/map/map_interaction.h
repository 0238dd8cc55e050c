#pragma once

#include "map/map_marks.h"
#include "map/map_plotting.h"

#include <QString>

#include <cstdint>

namespace torvane {

/// What a key on the map does to the rings: B, C and D show one ring each, any other key all of them.
void applyRingKey(MapToggles& toggles, const QString& typed);

/// The ruler between two clicks. Points are pixels of the view, whatever its origin.
class MeasureTool
{
public:
    enum class State { Idle, FirstPoint, SecondPoint };

    bool isOn() const { return m_on; }
    State state() const { return m_state; }

    void switchOn() { m_on = true; }
    /// Off, and forgets a line that was begun.
    void switchOff();

    /// A click. The first starts a new line, the next ends it. Throws Overflow beyond 32 bits.
    void click(double x, double y);
    /// The cross and the letter of the last click, at the place as it was clicked.
    MarkList crossMarks(double x, double y) const;

    /// Yards from the first point to a position, rounded to pixels before it is scaled: always a multiple of
    /// the scale. Throws Overflow beyond 32 bits.
    std::int32_t yardsTo(double x, double y, float scale) const;
    /// Yards between the two points.
    std::int32_t yards(float scale) const;
    /// The line between the two points with its length; the tool is idle afterwards.
    MarkList finish(float scale);

private:
    std::int32_t distance(double dx, double dy, float scale) const;

    bool m_on = false;
    State m_state = State::Idle;
    PixelPoint m_start;
    PixelPoint m_end;
};

/// "6,000 yds.", in both languages.
QString distanceText(std::int32_t yards);

} // namespace torvane
