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

/// Where the guns stand on the plan, from the bow and port before starboard, which is also the order of the
/// tab key.
struct Place
{
    std::size_t gun; ///< in their table
    int row;
    int column;
};
constexpr std::array<Place, secondaryGuns.size()> places{{{0, 0, 2}, {2, 1, 1}, {3, 1, 3}, {1, 2, 2}}};
constexpr int centreLine = 2;
constexpr int outboard[] = {0, 4}; // columns left and right of the ship
constexpr int deckWidth = 210;

} // namespace

SecondaryPage::SecondaryPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent)
    : ShipDataPage(shipData, designName, parent)
{
    auto* column = new QVBoxLayout(this);
    auto* plan = named<ShipPlan>("secondaryPlan", this);
    column->addWidget(plan, 1);
    auto* grid = new QGridLayout(plan);
    for (const Place& place : places) {
        grid->addWidget(makeCount(place.gun, plan), place.row, place.column, Qt::AlignCenter);
        grid->setRowStretch(place.row, 1);
    }
    grid->setColumnMinimumWidth(centreLine, deckWidth);
    for (const int side : outboard) {
        grid->setColumnStretch(side, 1);
    }
    auto* frame = named<QFrame>("fraSecondaryMagazine", this);
    frame->setFrameShape(QFrame::StyledPanel);
    column->addWidget(frame, 0, Qt::AlignHCenter);
    addMagazine(new QGridLayout(frame), secondaryMagazine);
}

QWidget* SecondaryPage::makeCount(std::size_t gun, QWidget* plan)
{
    const SecondaryGunRow& row = secondaryGuns.at(gun);
    auto* group = new QWidget(plan);
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
    const auto countDown = [this, gun] {
        QString& shown = m_data.condition.secondaryGunCounts.at(gun);
        shown = steppedGunCount(shown, m_data.limits.secondaryGunCounts.at(gun));
    };
    addButton(count.button, countDown);
    addKeys({.button = count.button, .plus = {}, .minus = countDown});
    return group;
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
