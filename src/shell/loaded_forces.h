#pragma once

#include "scenario_file/load_scenario.h"

namespace torvane {

class MainMenu;

/// The main menu, as a load fills it.
class LoadedForces : public ForceMenus
{
public:
    /// `menu` outlives it.
    explicit LoadedForces(MainMenu& menu) : m_menu(menu) {}

    void showDivision(Side side, int number) override;
    void enableForces() override;
    void addRepositionMenuEntry(const QString& name, const QString& side) override;

private:
    MainMenu& m_menu;
};

} // namespace torvane
