#pragma once

#include "ship_state/condition_bar.h"
#include "ship_state/ship_condition.h"
#include "ship_state/ship_data_texts.h"

#include <QColor>
#include <QGroupBox>

#include <functional>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QGridLayout;
class QLabel;

namespace torvane {

class ListCombo;
class StepButton;
class ValueLabel;

/// How something destroyed is written.
inline const QColor destroyedColor(168, 28, 28);

/// What the pages show and change: the ship's condition, and what its class has. The dialog owns it.
struct ShipData
{
    ShipCondition condition;
    ClassLimits limits;
};

/// A page of the ship data dialog: a frame whose controls show parts of a condition. What its controls do is
/// handed to the dialog, which connects it.
class ShipDataPage : public QGroupBox
{
    Q_OBJECT

public:
    using Action = std::function<void()>;
    /// A check box of a part that may be destroyed.
    struct Box
    {
        const DamageBox* row;
        bool* destroyed;
        QCheckBox* box;
    };
    /// A number with its bar and buttons.
    struct Stepper
    {
        const StepperRow* row;
        QString* caption;
        std::function<QString(const QString& caption, Step step)> rule;
        double full;
        QLabel* label;
        ConditionBar* bar;
        ValueLabel* value;
        StepButton* up;
        StepButton* down;

        void step(Step direction) const { *caption = rule(*caption, direction); }
    };
    /// A list with its label.
    struct List
    {
        const ListRow* row;
        QString* shown;
        QLabel* label;
        ListCombo* list;
    };
    /// Any other button.
    struct Button
    {
        QAbstractButton* button;
        Action press;
    };
    /// What the keys "+" and "-" do on a button that is in no stepper; an empty action leaves its key alone.
    struct Keys
    {
        StepButton* button;
        Action plus;
        Action minus;
    };

    const std::vector<Box>& boxes() const { return m_boxes; }
    const std::vector<Stepper>& steppers() const { return m_steppers; }
    const std::vector<List>& lists() const { return m_lists; }
    const std::vector<Button>& buttons() const { return m_buttons; }
    const std::vector<Keys>& keys() const { return m_keys; }

    /// Makes the controls show the condition.
    virtual void showCondition();
    /// Captions, lists, tool tips. `taken` are the mnemonics that the dialog itself has.
    virtual void applyCaptions(Language language, QString taken);

protected:
    /// `shipData` outlives the page. `designName` is the frame's, as the table of the tabs has it.
    ShipDataPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent);

    QCheckBox* addBox(const DamageBox& row, bool& destroyed, QWidget* parent);
    /// What a stepper steps.
    struct Stepped
    {
        const StepperRow& row;
        QString& caption;
        std::function<QString(const QString& caption, Step step)> rule = steppedPercent;
        double full = fullPercent;
        ConditionBar::Full meaning = ConditionBar::Full::Good;
    };
    /// Fills a row of five columns: caption, bar, value, down, up.
    void addStepper(QGridLayout* grid, int row, const Stepped& stepped);
    /// Fills four rows: the box of a magazine and its rounds. Where the class has none of a round, its
    /// buttons do nothing.
    void addMagazine(QGridLayout* grid, std::size_t magazine);
    /// Fills a row from a column on: caption, list.
    void addList(QGridLayout* grid, int row, int column, const ListRow& list, QString& shown);
    void addButton(QAbstractButton* button, Action press);
    void addKeys(Keys keys);
    /// Tells what a step button does; `name` takes the caption that stands at it.
    static void nameStepButton(QWidget* button, ShipDataText name, ShipDataText tip, const QString& caption,
                               Language language);
    /// A label with a design name.
    template <typename Label = QLabel, typename... Arguments>
    static Label* named(const char* designName, Arguments... arguments)
    {
        auto* label = new Label(arguments...);
        label->setObjectName(QLatin1StringView(designName));
        return label;
    }

    ShipData& m_data;

private:
    std::vector<Box> m_boxes;
    std::vector<Stepper> m_steppers;
    std::vector<List> m_lists;
    std::vector<Button> m_buttons;
    std::vector<Keys> m_keys;
};

} // namespace torvane
