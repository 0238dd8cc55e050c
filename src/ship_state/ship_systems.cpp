#include "ship_state/ship_systems.h"

#include "platform/number_text.h"

#include <cmath>

namespace torvane {

namespace {

constexpr double tooLongRepair = 211; // minutes
constexpr double secondsPerMinute = 60;

} // namespace

void setDestroyed(RepairState& state, const RepairRow& row, bool destroyed)
{
    if (state.destroyed == destroyed) {
        return;
    }
    state.destroyed = destroyed;
    if (row.hasLiveBox) {
        state.time = QStringLiteral("0");
    }
}

void stepRepairTime(RepairState& state, const RepairRow& row, Step step)
{
    const double minutes = numberValue(state.time) + (step == Step::Up ? 1 : -1);
    if (step == Step::Up && minutes < tooLongRepair) {
        // The time first: a box that is ticked sets it back to 0 as it is cleared.
        state.time = textOf(minutes);
        setDestroyed(state, row, false);
    } else if (step == Step::Down && minutes >= 0) {
        state.time = textOf(minutes);
    }
}

void loadRepair(RepairState& state, const RepairRow& row, const QString& stored)
{
    const bool destroyed = isDestroyed(stored);
    if (destroyed) {
        setDestroyed(state, row, true);
    }
    if (!row.showsMinutes) {
        state.time = stored;
    } else if (!destroyed) {
        state.time = textOf(std::trunc(numberValue(stored) / secondsPerMinute));
    }
}

QString savedRepair(const RepairState& state)
{
    if (state.destroyed) {
        return destroyedFlag;
    }
    return textOf(finiteOf(state.time, numberValue(state.time) * secondsPerMinute));
}

} // namespace torvane
