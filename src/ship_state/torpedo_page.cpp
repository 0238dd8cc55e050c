#include "ship_state/torpedo_page.h"

#include "ship_state/ship_plan.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace torvane {

TorpedoPage::TorpedoPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent)
    : ShipDataPage(shipData, designName, parent)
{
    auto* column = new QVBoxLayout(this);
    auto* plan = named<ShipPlan>("torpedoPlan", this);
    plan->setMinimumWidth(360);
    column->addWidget(plan, 1, Qt::AlignHCenter);
    auto* mounts = new QVBoxLayout(plan);
    mounts->addStretch(2);
    for (std::size_t i = 0; i < torpedoMounts.size(); ++i) {
        mounts->addStretch(1);
        mounts->addWidget(addBox(torpedoMounts.at(i).damage, m_data.condition.mountsDestroyed.at(i), plan), 0,
                          Qt::AlignHCenter);
    }
    mounts->addStretch(2);
}

} // namespace torvane
