#include "overview/overview_frm.h"

#include "divisions/create_division_frm.h"
#include "overview/dialog_texts.h"
#include "overview/enviro_frm.h"
#include "overview/force_colors.h"
#include "overview/overview_rules.h"
#include "overview/overview_tips.h"
#include "platform/control_captions.h"
#include "platform/list_combo.h"
#include "platform/mnemonics.h"
#include "platform/step_button.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "store/profile_keys.h"
#include "ui_overview_frm.h"

#include <QAction>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace torvane {

OverviewFrm::OverviewFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("OverviewFrm"), Qt::Dialog),
      m_ui(std::make_unique<Ui::OverviewFrm>()),
      m_victoryMods(hiddenControl<ListCombo>("ComboVPMods")),
      m_blueCondition(hiddenControl<ListCombo>("ComboBlueVC")),
      m_redCondition(hiddenControl<ListCombo>("ComboRedVC"))
{
    m_ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    colorForces();
    connectSteppers();
    connectTyping();
    on(m_ui->cmbMission, &ListCombo::activated, [this] {
        setForces(false);
        showMission(false);
    });
    on(m_ui->cmdEnviroCntrl, &QPushButton::clicked, [this] { openEnvironment(); });
    on(m_ui->cmdOK, &QPushButton::clicked, [this] { save(); });
    on(m_ui->CmdCancel, &QPushButton::clicked, [this] { leave(); });
}

OverviewFrm::~OverviewFrm() = default;

QString OverviewFrm::title() const
{
    return m_ui->TxtTitle->text();
}

QString OverviewFrm::navy(Side side) const
{
    return (side == Side::Blue ? m_ui->CmbBlueSide : m_ui->CmbRedSide)->shownText();
}

void OverviewFrm::onLoad()
{
    EditorForm::onLoad();
    fillLists(*this, m_editor.language());
    show(scenarioDefaults(m_editor.language()).overview);
    if (const Mission* first = mission()) {
        showBrief(*first, false);
    }
}

void OverviewFrm::applyCaptions(Language language)
{
    applyCaptionTable(*this, overviewCaptions, language);
    applyControlTips(*this, overviewTips, language);
    applyControlNames(*this, overviewNames, language);
    applyMnemonics();
}

void OverviewFrm::applyMnemonics()
{
    QString taken;
    for (QPushButton* button : {m_ui->cmdOK, m_ui->CmdCancel, m_ui->cmdEnviroCntrl}) {
        taken.append(mnemonicOf(button->text()));
    }
    for (QLabel* label : {m_ui->Label1, m_ui->Label2, m_ui->Label6, m_ui->lblMovie, m_ui->Label22,
                          m_ui->Label5, m_ui->Label26, m_ui->Label24, m_ui->Label19, m_ui->Label25}) {
        label->setText(withMnemonic(label->text(), taken));
    }
}

void OverviewFrm::colorForces()
{
    const std::array grounds{std::pair{m_ui->lblMissionA, forceABlue},
                             std::pair{m_ui->lblMissionB, forceBRed}};
    for (const auto& [label, color] : grounds) {
        QPalette colors = label->palette();
        colors.setColor(QPalette::Window, color);
        colors.setColor(QPalette::WindowText, Qt::white);
        label->setPalette(colors);
    }
}

void OverviewFrm::titleChanged()
{
    const LockedText rule = lockedTitle(m_ui->TxtTitle->text());
    if (!rule.locked) {
        return;
    }
    if (m_ui->TxtTitle->text() != rule.text) {
        const int cursor = m_ui->TxtTitle->cursorPosition();
        m_ui->TxtTitle->setText(rule.text);
        m_ui->TxtTitle->setCursorPosition(cursor);
    }
    m_ui->TxtTitle->setReadOnly(true);
}

void OverviewFrm::descriptionChanged()
{
    const QString text = m_ui->RichTxtDescrip->toPlainText();
    const QString line = text.contains(QLatin1Char('\n')) ? oneParagraph(text) : text;
    const LockedText rule = lockedDescription(line);
    if (rule.text != text) {
        showDescription(rule.text);
    }
    if (rule.locked) {
        m_ui->RichTxtDescrip->setReadOnly(true);
    }
}

// Leaves the cursor where the author is writing, as far as the text reaches.
void OverviewFrm::showDescription(const QString& text)
{
    QTextCursor cursor = m_ui->RichTxtDescrip->textCursor();
    const int position = cursor.position();
    m_ui->RichTxtDescrip->setPlainText(text);
    cursor.setPosition(std::min(position, static_cast<int>(text.size())));
    m_ui->RichTxtDescrip->setTextCursor(cursor);
}

// A box at its limit takes keys again with the next key or pointer event over it.
void OverviewFrm::unlock(QObject* box)
{
    if (box == m_ui->TxtTitle) {
        m_ui->TxtTitle->setReadOnly(false);
    } else if (box == m_ui->RichTxtDescrip || box == m_ui->RichTxtDescrip->viewport()) {
        m_ui->RichTxtDescrip->setReadOnly(false);
    }
}

static bool isPointerOrKey(QEvent::Type type)
{
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress || type == QEvent::HoverMove ||
           type == QEvent::Enter || type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
}

bool OverviewFrm::eventFilter(QObject* watched, QEvent* event)
{
    if (Form::eventFilter(watched, event)) {
        return true;
    }
    if (isPointerOrKey(event->type())) {
        unlock(watched);
    }
    if (event->type() == QEvent::KeyPress && watched == m_ui->RichTxtDescrip) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // Enter makes no new line: the description stays one paragraph.
            runHandler([this] {
                showDescription(oneParagraph(m_ui->RichTxtDescrip->toPlainText()));
                m_ui->cmbMission->setFocus();
            });
            return true;
        }
    }
    return false;
}

OverviewValues OverviewFrm::values() const
{
    return {.title = m_ui->TxtTitle->text(),
            .description = m_ui->RichTxtDescrip->toPlainText(),
            .mission = m_ui->cmbMission->shownText(),
            .blueNavy = m_ui->CmbBlueSide->shownText(),
            .redNavy = m_ui->CmbRedSide->shownText(),
            .movie = m_ui->cmbMovie->shownText(),
            .disengageA = m_ui->txtDisengageA->text(),
            .disengageB = m_ui->txtDisengageB->text(),
            .modifierA = m_ui->txtVPmodsA->text(),
            .modifierB = m_ui->txtVPmodsB->text(),
            .forceA = lblForceA->text(),
            .forceB = lblForceB->text(),
            .blueCondition = m_blueCondition->shownText(),
            .redCondition = m_redCondition->shownText(),
            .victoryMods = m_victoryMods->shownText()};
}

void OverviewFrm::show(const OverviewValues& values)
{
    m_ui->TxtTitle->setText(values.title);
    m_ui->RichTxtDescrip->setPlainText(values.description);
    m_blueCondition->showText(values.blueCondition);
    m_redCondition->showText(values.redCondition);
    m_victoryMods->showText(values.victoryMods);
    m_ui->CmbBlueSide->showEntry(values.blueNavy);
    m_ui->CmbRedSide->showEntry(values.redNavy);
    m_ui->txtDisengageA->setText(values.disengageA);
    m_ui->txtDisengageB->setText(values.disengageB);
    m_ui->cmbMission->showEntry(values.mission);
    m_ui->txtVPmodsA->setText(values.modifierA);
    m_ui->txtVPmodsB->setText(values.modifierB);
    lblForceA->setText(values.forceA);
    lblForceB->setText(values.forceB);
    m_ui->cmbMovie->showText(values.movie);
}

void OverviewFrm::WriteINI()
{
    const ScenarioValues shown{.overview = values(), .environment = m_editor.enviroFrm().values()};
    for (const auto& [key, value] : encodeScenario(shown, m_editor.language())) {
        m_editor.workingProfile().write(scenarioDataSection, key, value);
    }
}

void OverviewFrm::loadExisting()
{
    ScenarioValues loaded{.overview = values(), .environment = m_editor.enviroFrm().values()};
    for (const LoadedKey& key : overviewKeys()) {
        const QString stored = m_editor.workingProfile().GetIniKey(scenarioDataSection, key.name);
        applyOverviewKey(key.name, stored, loaded, m_editor.language());
    }
    show(loaded.overview);
    m_editor.enviroFrm().show(loaded.environment);
}

void OverviewFrm::applyScenarioDefaults()
{
    const ScenarioValues defaults = scenarioDefaults(m_editor.language());
    show(defaults.overview);
    m_editor.enviroFrm().show(defaults.environment);
}

void OverviewFrm::onActivate()
{
    if (m_returning) {
        m_returning = false;
        return;
    }
    const bool fresh = valueOf(ChknewFlag) == 1;
    m_ui->CmdCancel->setEnabled(!fresh);
    if (fresh) {
        applyScenarioDefaults();
        WriteINI();
    } else {
        loadExisting();
    }
    const bool swapped =
        rolesSwapped(m_editor.workingProfile().GetIniKey(scenarioDataSection, u"BLUE_FORCE_TYPE"));
    setForces(swapped);
    showMission(swapped);
}

void OverviewFrm::setForces(bool swapped)
{
    const Language language = m_editor.language();
    lblForceA->setText((swapped ? forceB : forceA).in(language));
    lblForceB->setText((swapped ? forceA : forceB).in(language));
}

const Mission* OverviewFrm::mission() const
{
    return missionOfCaption(m_ui->cmbMission->shownText(), m_editor.language());
}

void OverviewFrm::showMission(bool swapped)
{
    if (const Mission* chosen = mission()) {
        showBrief(*chosen, swapped);
        setValue(m_editor.mainFrm().chkBombardment, chosen->needsTargetArea ? 1 : 0);
    }
}

void OverviewFrm::showBrief(const Mission& chosen, bool swapped)
{
    const MissionBrief brief = missionBrief(chosen, m_editor.language(), swapped);
    m_ui->lblMissionA->setText(brief.firstRole);
    m_ui->lblMissionB->setText(brief.secondRole);
    m_ui->RTxtBBlueBrief->setPlainText(brief.objectiveA);
    m_ui->RTxtBRedBrief->setPlainText(brief.objectiveB);
}

void OverviewFrm::openEnvironment()
{
    m_returning = true;
    m_editor.enviroFrm().openOver(*this);
}

void OverviewFrm::save()
{
    leave();
    if (valueOf(ChknewFlag) == 1) {
        setValue(ChknewFlag, 0);
        setValue(m_editor.createDivisionFrm().ChknewBlueFlag, 1);
        setValue(m_editor.createDivisionFrm().ChknewRedFlag, 1);
        const MainMenu& menu = m_editor.mainFrm().menu();
        for (const char* entry : {"mnuCreateForceA", "mnuCreateForceB"}) {
            menu.setVisible(QLatin1StringView(entry), true);
            menu.setEnabled(QLatin1StringView(entry), true);
        }
    }
    m_editor.enviroFrm().forgetCancelled();
    WriteINI();
}

void OverviewFrm::onCloseBox()
{
    if (m_ui->CmdCancel->isEnabled()) {
        leave();
    }
}

void OverviewFrm::leave()
{
    // Left ahead of its own activation it would take the next opening, also that of New, for a return.
    m_returning = false;
    leaveTo(m_editor.mainFrm());
}

} // namespace torvane
