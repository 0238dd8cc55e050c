#include "shell/loaded_forces.h"

#include "shell/commands.h"
#include "shell/main_menu.h"
#include "store/force_sizes.h"

namespace torvane {

void LoadedForces::showDivision(Side side, int number)
{
    if (number > divisionsPerSide) {
        return;
    }
    const bool forceA = side == Side::Blue;
    m_menu.setVisible(editEntryName(forceA, number), true);
    m_menu.setVisible(QLatin1StringView(repositionRow(forceA, number).entry), true);
}

void LoadedForces::enableForces()
{
    for (const char* entry : {"mnuCreateForceA", "editForceA", "mnuRepoForceA", "mnuCreateForceB",
                              "editForceB", "mnuRepoForceB"}) {
        m_menu.setEnabled(QLatin1StringView(entry), true);
    }
}

void LoadedForces::addRepositionMenuEntry(const QString& name, const QString& side)
{
    m_menu.addRepositionMenuEntry(name, side);
}

} // namespace torvane
