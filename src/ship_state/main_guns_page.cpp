#include "ship_state/main_guns_page.h"

#include "ui_main_guns_page.h"

#include <QCheckBox>

#include <algorithm>

namespace torvane {

namespace {

/// Where a turret's box stands in its frame.
struct TurretPlace
{
    char letter;
    int row;
    int column;
};
// From bow to stern, port before starboard, which is also the order of the tab key. In the waist L and R, N
// and M, O and Q are abreast.
constexpr std::array<TurretPlace, 20> places{{
    {'A', 0, 0}, {'B', 1, 0}, {'C', 2, 0}, {'D', 0, 0}, {'E', 0, 1}, {'L', 0, 0}, {'N', 1, 0},
    {'O', 2, 0}, {'R', 0, 0}, {'M', 1, 0}, {'Q', 2, 0}, {'G', 0, 0}, {'H', 0, 1}, {'T', 0, 0},
    {'U', 0, 1}, {'I', 0, 0}, {'J', 0, 1}, {'X', 0, 0}, {'Y', 1, 0}, {'Z', 2, 0},
}};

std::size_t turretOf(char letter)
{
    const auto* const found = std::ranges::find(turrets, letter, &Turret::letter);
    return static_cast<std::size_t>(found - turrets.begin());
}

} // namespace

MainGunsPage::MainGunsPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent)
    : ShipDataPage(shipData, designName, parent), m_ui(std::make_unique<Ui::MainGunsPage>())
{
    m_ui->setupUi(this);
    for (const TurretPlace& place : places) {
        const std::size_t i = turretOf(place.letter);
        auto* frame = findChild<QGroupBox*>(QLatin1StringView(turrets.at(i).frame));
        QCheckBox* box = addBox(turrets.at(i).damage, m_data.condition.turretsDestroyed.at(i), frame);
        // The plan keeps its shape whatever turrets a class has.
        QSizePolicy policy = box->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        box->setSizePolicy(policy);
        static_cast<QGridLayout*>(frame->layout())->addWidget(box, place.row, place.column);
    }
    addMagazine(m_ui->fraMagazineALayout, 0);
    addMagazine(m_ui->fraMagazineBLayout, 1);
    showClassTurrets();
}

MainGunsPage::~MainGunsPage() = default;

void MainGunsPage::showClassTurrets()
{
    for (const TurretArc& arc : turretArcs) {
        findChild<QGroupBox*>(QLatin1StringView(arc.frame))->setEnabled(false);
    }
    for (std::size_t i = 0; i < turrets.size(); ++i) {
        const bool has = m_data.limits.hasTurret.at(i);
        auto* box = findChild<QCheckBox*>(QLatin1StringView(turrets.at(i).damage.box));
        box->setVisible(has);
        if (has) {
            // An arc without turrets looks unused.
            box->parentWidget()->setEnabled(true);
        }
    }
}

void MainGunsPage::applyCaptions(Language language, QString taken)
{
    ShipDataPage::applyCaptions(language, taken);
    const QString title = captionOf(shipDataCaptions, m_ui->Frame2->objectName(), language);
    m_ui->Frame2->setTitle(title);
    for (const TurretArc& arc : turretArcs) {
        findChild<QGroupBox*>(QLatin1StringView(arc.frame))->setTitle(arc.title.in(language));
    }
}

} // namespace torvane
