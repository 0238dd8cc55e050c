#include "ship_state/ship_data_page.h"

#include "platform/list_combo.h"
#include "platform/mnemonics.h"
#include "platform/step_button.h"
#include "ship_state/value_label.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace torvane {

namespace {

constexpr int percentCharacters = 18; // "66.6666666666667 %"

enum StepperColumn { CaptionColumn, BarColumn, ValueColumn, DownColumn, UpColumn };
constexpr int stepperColumns = 5;

} // namespace

ShipDataPage::ShipDataPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent)
    : QGroupBox(parent), m_data(shipData)
{
    setObjectName(designName);
}

QCheckBox* ShipDataPage::addBox(const DamageBox& row, bool& destroyed, QWidget* parent)
{
    auto* box = named<QCheckBox>(row.box, parent);
    m_boxes.push_back({&row, &destroyed, box});
    return box;
}

void ShipDataPage::addStepper(QGridLayout* grid, int row, const Stepped& stepped)
{
    const StepperRow& controls = stepped.row;
    const Stepper stepper{.row = &controls,
                          .caption = &stepped.caption,
                          .rule = stepped.rule,
                          .full = stepped.full,
                          .label = named(controls.captionLabel),
                          .bar = new ConditionBar(stepped.meaning),
                          .value = named<ValueLabel>(controls.valueLabel, percentCharacters),
                          .up = named<StepButton>(controls.up),
                          .down = named<StepButton>(controls.down)};
    stepper.bar->setObjectName(stepper.value->objectName() + QStringLiteral("Bar"));
    stepper.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    stepper.up->setText(QStringLiteral("▶"));
    stepper.down->setText(QStringLiteral("◀"));
    stepper.label->setBuddy(stepper.down);
    grid->addWidget(stepper.label, row, CaptionColumn);
    grid->addWidget(stepper.bar, row, BarColumn);
    grid->addWidget(stepper.value, row, ValueColumn);
    grid->addWidget(stepper.down, row, DownColumn);
    grid->addWidget(stepper.up, row, UpColumn);
    m_steppers.push_back(stepper);
}

void ShipDataPage::addMagazine(QGridLayout* grid, std::size_t magazine)
{
    QCheckBox* box = addBox(magazineDamage.at(magazine), m_data.condition.magazinesDestroyed.at(magazine),
                            grid->parentWidget());
    grid->addWidget(box, 0, 0, 1, stepperColumns);
    for (std::size_t round = 0; round < roundsOfMagazine; ++round) {
        const std::size_t i = magazine * roundsOfMagazine + round;
        const auto rule = [&maximum = m_data.limits.rounds.at(i)](const QString& caption, Step step) {
            return maximum == 0 ? caption : steppedPercent(caption, step);
        };
        addStepper(grid, static_cast<int>(round) + 1,
                   {.row = magazines.at(i).controls, .caption = m_data.condition.rounds.at(i), .rule = rule});
    }
}

void ShipDataPage::addList(QGridLayout* grid, int row, int column, const ListRow& list, QString& shown)
{
    auto* label = named(list.captionLabel);
    auto* combo = named<ListCombo>(list.list);
    label->setBuddy(combo);
    grid->addWidget(label, row, column);
    grid->addWidget(combo, row, column + 1);
    m_lists.push_back({&list, &shown, label, combo});
}

void ShipDataPage::addButton(QAbstractButton* button, Action press)
{
    m_buttons.push_back({button, std::move(press)});
}

void ShipDataPage::addKeys(Keys keys)
{
    m_keys.push_back(std::move(keys));
}

void ShipDataPage::nameStepButton(QWidget* button, ShipDataText name, ShipDataText tip,
                                  const QString& caption, Language language)
{
    button->setAccessibleName(shipDataText(name, language).arg(caption));
    button->setAccessibleDescription(shipDataText(tip, language));
    button->setToolTip(shipDataText(tip, language));
}

void ShipDataPage::showCondition()
{
    for (const Box& box : m_boxes) {
        box.box->setChecked(*box.destroyed);
    }
    for (const Stepper& stepper : m_steppers) {
        stepper.value->setText(*stepper.caption);
        stepper.bar->setShare(shareShown(*stepper.caption, stepper.full));
    }
    for (const List& list : m_lists) {
        list.list->showText(*list.shown);
    }
}

void ShipDataPage::applyCaptions(Language language, QString taken)
{
    for (const Box& box : m_boxes) {
        box.box->setText(box.row->caption.in(language));
        box.box->setToolTip(shipDataText(ShipDataText::DestroyedTip, language));
        box.box->setAccessibleDescription(box.box->toolTip());
    }
    for (const Stepper& stepper : m_steppers) {
        const QString caption = stepper.row->caption.in(language);
        const bool fire = stepper.row == &fireLevel;
        stepper.label->setText(withMnemonic(caption, taken));
        stepper.value->setAccessibleName(caption);
        stepper.bar->setAccessibleName(caption);
        nameStepButton(stepper.up, ShipDataText::More,
                       fire ? ShipDataText::FireMore : ShipDataText::PercentMore, caption, language);
        nameStepButton(stepper.down, ShipDataText::Less,
                       fire ? ShipDataText::FireLess : ShipDataText::PercentLess, caption, language);
    }
    for (const List& list : m_lists) {
        const QString caption = list.row->caption.in(language);
        list.label->setText(withMnemonic(caption, taken));
        list.list->setAccessibleName(caption);
        list.list->setToolTip(list.row->tip.in(language));
        list.list->setAccessibleDescription(list.list->toolTip());
        const QStringList entries = entriesOf(*list.row, language);
        list.list->addItems(entries);
        // A word from the record that is no entry doesn't make the list wider than its entries do.
        list.list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        const auto longest = std::ranges::max_element(entries, {}, &QString::size);
        list.list->setMinimumContentsLength(static_cast<int>(longest->size()));
    }
}

} // namespace torvane
