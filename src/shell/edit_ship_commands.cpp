#include "shell/edit_ship_commands.h"

#include "shell/commands.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "ship_state/ship_data_frm.h"
#include "store/force_sizes.h"

#include <QAction>

namespace torvane {

QStringList editShipEntries()
{
    QStringList entries;
    for (const bool isForceA : {true, false}) {
        for (int division = 1; division <= divisionsPerSide; ++division) {
            for (int ship = 1; ship <= shipEntries(division); ++ship) {
                entries.append(shipEntryName(isForceA, division, ship));
            }
        }
    }
    return entries;
}

void editShip(Editor& editor, const QString& entry)
{
    ShipDataFrm& dialog = editor.shipDataFrm();
    MainFrm& mainFrm = editor.mainFrm();
    dialog.lblShipName->setText(mainFrm.menu().action(entry)->text());
    dialog.openOver(mainFrm);
}

} // namespace torvane
