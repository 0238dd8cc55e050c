#include "ship_state/systems_page.h"

#include "platform/mnemonics.h"
#include "platform/step_button.h"
#include "ship_state/value_label.h"
#include "ui_systems_page.h"

#include <QCheckBox>

#include <algorithm>

namespace torvane {

namespace {

constexpr int timeCharacters = 10;
constexpr int summaryCharacters = 14;

/// Where the boxes stand, in the order of their table: port and starboard, fore and aft.
struct Place
{
    int row;
    int column;
};
constexpr std::array<Place, lightsAndDirectors.size()> places{
    {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {0, 0}, {1, 0}}};
constexpr std::size_t searchlights = 4;

} // namespace

SystemsPage::SystemsPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent)
    : ShipDataPage(shipData, designName, parent), m_ui(std::make_unique<Ui::SystemsPage>())
{
    m_ui->setupUi(this);
    for (std::size_t row = 0; row < repairRows.size(); ++row) {
        addRepair(row);
    }
    addConditions();
    for (std::size_t i = 0; i < lightsAndDirectors.size(); ++i) {
        QGroupBox* frame = i < searchlights ? m_ui->Frame10 : m_ui->Frame11;
        QCheckBox* box =
            addBox(lightsAndDirectors.at(i), m_data.condition.lightsAndDirectorsDestroyed.at(i), frame);
        static_cast<QGridLayout*>(frame->layout())->addWidget(box, places.at(i).row, places.at(i).column);
    }
    const Action more = [this] { stepTime(Step::Up); };
    const Action less = [this] { stepTime(Step::Down); };
    addButton(m_ui->cmdTimeUp, more);
    addButton(m_ui->cmdTimeDown, less);
    for (StepButton* button : {m_ui->cmdTimeUp, m_ui->cmdTimeDown}) {
        addKeys({.button = button, .plus = more, .minus = less});
    }
    addButton(m_ui->Command1, [this] { closeRepair(); });
    m_ui->repairPlace->setCurrentWidget(m_ui->repairHint);
}

SystemsPage::~SystemsPage() = default;

void SystemsPage::addRepair(std::size_t row)
{
    const RepairRow& system = repairRows.at(row);
    Repair& repair = m_repairs.at(row);
    repair = {.button = named<QPushButton>(system.button, this),
              .summary = new ValueLabel(summaryCharacters, this),
              .time = named<ValueLabel>(system.timeLabel, timeCharacters, m_ui->fraRepairTime),
              .box = named<QCheckBox>(system.box, m_ui->fraRepairTime)};
    repair.summary->setObjectName(repair.button->objectName() + QStringLiteral("Summary"));
    repair.button->setAutoDefault(true); // the Enter key opens the row and doesn't save
    repair.time->setAlignment(Qt::AlignCenter);
    m_ui->repairs->addWidget(repair.button, static_cast<int>(row), 0);
    m_ui->repairs->addWidget(repair.summary, static_cast<int>(row), 1);
    m_ui->repairTimes->addWidget(repair.time);
    m_ui->repairBoxes->addWidget(repair.box);
    QWidget::setTabOrder(m_ui->cmdTimeUp, repair.box); // as they stand in the panel, its OK behind them
    repair.time->hide();
    repair.box->hide();
    addButton(repair.button, [this, row] { openRepair(row); });
    addButton(repair.box, [this, row, box = repair.box] {
        setDestroyed(m_data.condition.repairs.at(row), repairRows.at(row), box->isChecked());
    });
}

void SystemsPage::addConditions()
{
    addStepper(m_ui->power, 0, {.row = propulsionPower, .caption = m_data.condition.propulsion});
    addList(m_ui->rudder, 0, 0, rudderList, m_data.condition.rudder);
}

void SystemsPage::openRepair(std::size_t row)
{
    m_ui->repairPlace->setCurrentWidget(m_ui->fraRepairTime);
    hideRepairRows();
    m_repairs.at(row).time->show();
    m_repairs.at(row).box->setVisible(repairRows.at(row).hasLiveBox);
    repairRow = repairRows.at(row).word;
    m_ui->cmdTimeUp->setFocus();
    Q_EMIT repairOpened();
}

void SystemsPage::closeRepair()
{
    m_ui->repairPlace->setCurrentWidget(m_ui->repairHint);
    Q_EMIT repairClosed();
    m_repairs.at(openRow()).button->setFocus();
}

void SystemsPage::hideRepairRows()
{
    for (const Repair& repair : m_repairs) {
        repair.time->hide();
        repair.box->hide();
    }
}

std::size_t SystemsPage::openRow() const
{
    const auto* const found = std::ranges::find(repairRows, repairRow, &RepairRow::word);
    return static_cast<std::size_t>(found - repairRows.begin());
}

void SystemsPage::stepTime(Step step)
{
    stepRepairTime(m_data.condition.repairs.at(openRow()), repairRows.at(openRow()), step);
}

void SystemsPage::showCondition()
{
    ShipDataPage::showCondition();
    for (std::size_t row = 0; row < m_repairs.size(); ++row) {
        const RepairState& state = m_data.condition.repairs.at(row);
        const Repair& repair = m_repairs.at(row);
        repair.time->setText(state.time);
        repair.box->setChecked(state.destroyed);
        repair.summary->setText(repairSummary(state, m_language));
        QPalette colors = palette();
        if (state.destroyed) {
            colors.setColor(QPalette::WindowText, destroyedColor);
        }
        repair.summary->setPalette(colors);
    }
}

void SystemsPage::applyCaptions(Language language, QString taken)
{
    m_language = language;
    for (std::size_t row = 0; row < m_repairs.size(); ++row) {
        const QString caption = repairRows.at(row).caption.in(language);
        const Repair& repair = m_repairs.at(row);
        repair.button->setText(withMnemonic(caption, taken));
        repair.button->setToolTip(shipDataText(ShipDataText::OpenRepair, language));
        repair.button->setAccessibleDescription(repair.button->toolTip());
        repair.summary->setAccessibleName(caption);
        repair.time->setAccessibleName(caption);
        repair.box->setText(QString::fromUtf8(repairRows.at(row).boxCaption));
    }
    ShipDataPage::applyCaptions(language, taken);
    const auto caption = [language](const QObject* control) {
        return captionOf(shipDataCaptions, control->objectName(), language);
    };
    m_ui->Label3->setText(caption(m_ui->Label3));
    m_ui->Command1->setText(caption(m_ui->Command1));
    m_ui->Command1->setToolTip(shipDataText(ShipDataText::CloseRepair, language));
    m_ui->Frame10->setTitle(caption(m_ui->Frame10));
    m_ui->Frame11->setTitle(caption(m_ui->Frame11));
    m_ui->lblRepairHint->setText(shipDataText(ShipDataText::ChooseSystem, language));
    nameStepButton(m_ui->cmdTimeUp, ShipDataText::More, ShipDataText::MinuteMore, m_ui->Label3->text(),
                   language);
    nameStepButton(m_ui->cmdTimeDown, ShipDataText::Less, ShipDataText::MinuteLess, m_ui->Label3->text(),
                   language);
}

} // namespace torvane
