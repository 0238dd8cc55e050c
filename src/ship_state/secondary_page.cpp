#include "ship_state/secondary_page.h"

#include "platform/mnemonics.h"
#include "platform/step_button.h"
#include "ship_state/ship_plan.h"
#include "ship_state/value_label.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace torvane {

namespace {

constexpr int countCharacters = 8;

/// Where the guns stand on the plan, in the order of their table.
struct Place
{
    int row;
    int column;
};
constexpr std::array<Place, secondaryGuns.size()> places{{{0, 1}, {2, 1}, {1, 0}, {1, 2}}};
constexpr Place magazinePlace{1, 1};
/// In the order of the tab key: from the bow, port before starboard, the magazine between them.
constexpr std::array<std::size_t, 2> beforeMagazine{0, 2};
constexpr std::array<std::size_t, 2> afterMagazine{3, 1};
constexpr std::size_t secondaryMagazine = 2;

} // namespace

SecondaryPage::SecondaryPage(ShipData& shipData, QWidget* parent)
    : ShipDataPage(shipData, QLatin1StringView("fraSecondary"), parent)
{
    auto* column = new QVBoxLayout(this);
    auto* plan = named<ShipPlan>("secondaryPlan", this);
    column->addWidget(plan);
    auto* grid = new QGridLayout(plan);
    grid->setVerticalSpacing(18);
    for (const std::size_t gun : beforeMagazine) {
        addCount(grid, gun);
    }
    auto* frame = named<QFrame>("fraSecondaryMagazine", plan);
    frame->setFrameShape(QFrame::StyledPanel);
    grid->addWidget(frame, magazinePlace.row, magazinePlace.column, Qt::AlignCenter);
    addMagazine(new QGridLayout(frame), secondaryMagazine);
    for (const std::size_t gun : afterMagazine) {
        addCount(grid, gun);
    }
    for (int side = 0; side < grid->columnCount(); ++side) {
        grid->setColumnStretch(side, 1);
        grid->setRowStretch(side, 1);
    }
}

void SecondaryPage::addCount(QGridLayout* plan, std::size_t gun)
{
    const SecondaryGunRow& row = secondaryGuns.at(gun);
    auto* group = new QWidget(plan->parentWidget());
    group->setObjectName(QLatin1StringView(row.countLabel) + QStringLiteral("Place"));
    auto* cell = new QGridLayout(group);
    m_counts.at(gun) = {.label = named(row.captionLabel, group),
                        .count = named<ValueLabel>(row.countLabel, countCharacters, group),
                        .button = named<StepButton>(row.button, group)};
    const Count& count = m_counts.at(gun);
    count.count->setAlignment(Qt::AlignCenter);
    count.button->setText(QStringLiteral("◀"));
    count.label->setBuddy(count.button);
    cell->addWidget(count.label, 0, 0, 1, 2, Qt::AlignHCenter);
    cell->addWidget(count.count, 1, 0);
    cell->addWidget(count.button, 1, 1);
    plan->addWidget(group, places.at(gun).row, places.at(gun).column, Qt::AlignCenter);
    addButton(count.button, [this, gun] {
        QString& shown = m_data.condition.secondaryGunCounts.at(gun);
        shown = steppedGunCount(shown, m_data.limits.secondaryGunCounts.at(gun));
    });
}

void SecondaryPage::showCondition()
{
    ShipDataPage::showCondition();
    for (std::size_t gun = 0; gun < m_counts.size(); ++gun) {
        m_counts.at(gun).count->setText(m_data.condition.secondaryGunCounts.at(gun));
    }
}

void SecondaryPage::applyCaptions(Language language, QString taken)
{
    for (std::size_t gun = 0; gun < m_counts.size(); ++gun) {
        const QString caption = secondaryGuns.at(gun).caption.in(language);
        const Count& count = m_counts.at(gun);
        count.label->setText(withMnemonic(caption, taken));
        count.count->setAccessibleName(caption);
        nameStepButton(count.button, ShipDataText::Less, ShipDataText::GunLost, caption, language);
    }
    ShipDataPage::applyCaptions(language, taken);
}

} // namespace torvane
