#include "ship_state/general_page.h"

#include "ship_state/value_label.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace torvane {

namespace {

constexpr int nameCharacters = 24;
constexpr int groupGap = 18;

struct IdentityRow
{
    const char* label;
    const char* value;
    QString ShipCondition::*text;
};
constexpr std::array<IdentityRow, 3> identityRows{{
    {"Label32", "LblShrtName", &ShipCondition::shortName},
    {"Label33", "lblShipClass", &ShipCondition::shipClass},
    {"Label34", "LblShipNavy", &ShipCondition::navy},
}};

} // namespace

GeneralPage::GeneralPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent)
    : ShipDataPage(shipData, designName, parent)
{
    auto* column = new QVBoxLayout(this);
    auto* identity = new QGridLayout;
    auto* points = new QGridLayout;
    auto* crew = new QGridLayout;
    for (QGridLayout* group : {identity, points, crew}) {
        group->setHorizontalSpacing(10);
        column->addLayout(group);
        column->addSpacing(groupGap);
    }
    column->addStretch();

    ShipCondition& condition = m_data.condition;
    for (std::size_t i = 0; i < identityRows.size(); ++i) {
        const IdentityRow& row = identityRows.at(i);
        m_identity.at(i) = {&(condition.*row.text), named(row.label),
                            named<ValueLabel>(row.value, nameCharacters)};
        identity->addWidget(m_identity.at(i).label, static_cast<int>(i), 0);
        identity->addWidget(m_identity.at(i).value, static_cast<int>(i), 1);
    }
    identity->setColumnStretch(1, 1);
    addStepper(points, 0, {.row = hullPoints, .caption = condition.hull});
    addStepper(points, 1, {.row = floatPoints, .caption = condition.floatation});
    addStepper(points, 2,
               {.row = fireLevel,
                .caption = condition.fire,
                .rule = steppedFireLevel,
                .full = highestFireLevel,
                .meaning = ConditionBar::Full::Bad});
    points->setColumnStretch(1, 1);
    for (std::size_t i = 0; i < crewLists.size(); ++i) {
        const int place = static_cast<int>(i);
        addList(crew, place / 2, place % 2 * 2, crewLists.at(i), condition.crew.at(i));
    }
    crew->setColumnStretch(1, 1);
    crew->setColumnStretch(3, 1);
}

void GeneralPage::showCondition()
{
    ShipDataPage::showCondition();
    for (const Identity& row : m_identity) {
        row.value->setText(*row.text);
    }
}

void GeneralPage::applyCaptions(Language language, QString taken)
{
    ShipDataPage::applyCaptions(language, taken);
    for (const Identity& row : m_identity) {
        row.label->setText(captionOf(shipDataCaptions, row.label->objectName(), language));
        row.value->setAccessibleName(row.label->text());
    }
}

} // namespace torvane
