#include "overview/dialog_texts.h"
#include "overview/overview_frm.h"
#include "overview/overview_rules.h"
#include "platform/step_button.h"
#include "shell/editor.h"
#include "ui_overview_frm.h"

// The boxes of the overview that hold numbers: their steppers, and what is typed into them.

namespace torvane {

void OverviewFrm::connectSteppers()
{
    const auto stepper = [this](StepButton* button, QLineEdit* box, auto rule) {
        on(button, &StepButton::clicked, [box, rule] { box->setText(rule(box->text())); });
    };
    const auto up = [](const QString& text) { return steppedHeading(text, 1); };
    const auto down = [](const QString& text) { return steppedHeading(text, -1); };
    stepper(m_ui->Command9, m_ui->txtDisengageA, down);
    stepper(m_ui->Command10, m_ui->txtDisengageA, up);
    stepper(m_ui->Command13, m_ui->txtDisengageB, down);
    // Of the four this one alone keeps a fraction that was typed. Kept.
    stepper(m_ui->Command14, m_ui->txtDisengageB,
            [](const QString& text) { return steppedHeadingInSinglePrecision(text); });

    const struct
    {
        StepButton* button;
        QLineEdit* box;
        float change;
    } modifiers[] = {
        {m_ui->Command17, m_ui->txtVPmodsA, -1.00F}, {m_ui->Command18, m_ui->txtVPmodsA, 1.00F},
        {m_ui->Command19, m_ui->txtVPmodsA, -0.01F}, {m_ui->Command20, m_ui->txtVPmodsA, 0.01F},
        {m_ui->Command21, m_ui->txtVPmodsB, -1.00F}, {m_ui->Command22, m_ui->txtVPmodsB, 1.00F},
        {m_ui->Command15, m_ui->txtVPmodsB, -0.01F}, {m_ui->Command16, m_ui->txtVPmodsB, 0.01F},
    };
    for (const auto& [button, box, change] : modifiers) {
        stepper(button, box,
                [change = change](const QString& text) { return steppedVictoryModifier(text, change); });
    }
}

void OverviewFrm::connectTyping()
{
    for (QLineEdit* box : {m_ui->txtDisengageA, m_ui->txtDisengageB}) {
        on(box, &QLineEdit::textChanged,
           [this, box] { check(box, checkHeading, OverviewMessage::HeadingRange); });
    }
    for (QLineEdit* box : {m_ui->txtVPmodsA, m_ui->txtVPmodsB}) {
        on(box, &QLineEdit::textChanged,
           [this, box] { check(box, checkVictoryModifier, OverviewMessage::ModifierRange); });
    }
    on(m_ui->TxtTitle, &QLineEdit::textChanged, [this] { titleChanged(); });
    on(m_ui->RichTxtDescrip, &QPlainTextEdit::textChanged, [this] { descriptionChanged(); });
}

void OverviewFrm::check(QLineEdit* box, TypedCheck (*rule)(QStringView), OverviewMessage message)
{
    const TypedCheck typed = rule(box->text());
    if (!typed.accepted) {
        showOutOfRange(m_editor, message);
        box->setText(typed.text);
    }
}

} // namespace torvane
