#include "divisions/create_division_frm.h"

#include "divisions/division_settings.h"
#include "divisions/division_texts.h"
#include "overview/force_colors.h"
#include "overview/overview_frm.h"
#include "platform/control_captions.h"
#include "platform/list_combo.h"
#include "platform/mnemonics.h"
#include "platform/picture_box.h"
#include "platform/pointer.h"
#include "shell/commands.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "store/force_sizes.h"
#include "store/units.h"
#include "ui_create_division_frm.h"

#include <QScopeGuard>

#include <algorithm>

namespace torvane {

namespace {

constexpr int buttonMargin = 16;

void setGround(QWidget* widget, const QColor& ground, const QColor& ink)
{
    QPalette colors = widget->palette();
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::WindowText, ink);
    widget->setPalette(colors);
}

} // namespace

CreateDivisionFrm::CreateDivisionFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("CreateDivisionFrm"), Qt::Dialog),
      m_ui(std::make_unique<Ui::CreateDivisionFrm>())
{
    for (std::size_t i = 0; i < chkDiv.size(); ++i) {
        chkDiv[i] = hiddenControl<QCheckBox>("chkDiv");
        chkDiv[i]->setObjectName(QStringLiteral("chkDiv%1").arg(i + 1));
    }
    m_ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_picMask->setAutoFillBackground(true);
    makeUnusedControls();
    makeGrid();
    keepLockedReadable();
    connectSettings();
    connectButtons();
}

CreateDivisionFrm::~CreateDivisionFrm() = default;

// Filled, emptied and disabled with the others, but of no use to the author: they stand in a hidden frame.
void CreateDivisionFrm::makeUnusedControls()
{
    m_cmbDivName = new ListCombo(m_unused);
    m_cmbDivName->setObjectName(QStringLiteral("CmbDivName"));
    m_cmbSide = new ListCombo(m_unused);
    m_cmbSide->setObjectName(QStringLiteral("CmbSide"));
    m_cmbSide->addItems({blueWord, redWord});
    m_txtDivName = new QLineEdit(m_unused);
    m_txtDivName->setObjectName(QStringLiteral("txtDivName"));
}

void CreateDivisionFrm::connectButtons()
{
    on(m_ui->CmdAdd, &QPushButton::clicked, [this] { openShips(); });
    on(m_ui->CmdFlagShip, &QPushButton::clicked, [this] { armGrid(); });
    on(m_ui->CmdSaveData, &QPushButton::clicked, [this] { saveCreated(); });
    on(m_ui->cmdOK, &QPushButton::clicked, [this] { saveEdited(); });
    on(m_ui->CmdCancel, &QPushButton::clicked, [this] { cancelSub(); });
    on(m_ui->CmdEditCancel, &QPushButton::clicked, [this] { cancelEdit(); });
}

void CreateDivisionFrm::onLoad()
{
    EditorForm::onLoad();
    for (const FormationWord& word : formationWords) {
        m_ui->CmbFormation->addItem(shownFormation(QLatin1StringView(word.english), m_editor.language()));
    }
    for (const Spacing& spacing : spacingTable) {
        m_ui->CmbSpacing->addItem(spacing.yards);
    }
    fixSizes();
    const PixelOffset centre =
        pictureCentre(m_ui->fraCompass->picture()->width(), m_ui->fraCompass->picture()->height());
    m_centre = QPoint(centre.x, centre.z);
    m_editor.divisionRecords().recount();
    showLock(false);
}

void CreateDivisionFrm::applyCaptions(Language language)
{
    applyCaptionTable(*this, divisionCaptions, language);
    applyControlTips(*this, divisionTips, language);
    m_ui->GrdDivision->setAccessibleName(divisionText(DivisionText::Division, language));
    QStringList letters;
    for (const Bilingual& letter : compassLetters) {
        letters.append(letter.in(language));
    }
    m_ui->fraCompass->setLetters(letters);
    applyMnemonics();
}

void CreateDivisionFrm::applyMnemonics()
{
    QString taken;
    for (const QPushButton* button :
         {m_ui->CmdAdd, m_ui->CmdFlagShip, m_ui->CmdSaveData, m_ui->CmdCancel, m_ui->CmdEditShip,
          m_ui->CmdNewDivision, m_ui->cmdDivDataChng, m_ui->cmdKeepDivData}) {
        taken.append(mnemonicOf(button->text()));
    }
    // The label with the fewest free letters goes before the others that share them.
    for (QLabel* label : {m_ui->Label3, m_ui->Label5, m_ui->Label2, m_ui->Label4, m_ui->Label1}) {
        label->setText(withMnemonic(label->text(), taken));
    }
}

// Nothing moves when a button gives its place to another.
void CreateDivisionFrm::fixSizes()
{
    const std::array places{std::array{m_ui->cmdDivDataChng, m_ui->cmdKeepDivData},
                            std::array{m_ui->CmdSaveData, m_ui->cmdOK},
                            std::array{m_ui->CmdCancel, m_ui->CmdEditCancel}};
    for (const auto& [one, other] : places) {
        const int width = std::max(one->sizeHint().width(), other->sizeHint().width()) + buttonMargin;
        one->setMinimumWidth(width);
        other->setMinimumWidth(width);
    }
    const QFontMetrics metrics(m_ui->PicDivName->font());
    int width = 0;
    for (const Language language : {Language::English, Language::German}) {
        width = std::max(width, metrics.horizontalAdvance(divisionLabel(divisionsPerSide, language)));
    }
    m_ui->PicDivName->setFixedSize(width + metrics.averageCharWidth(), metrics.height());
}

QString CreateDivisionFrm::divisionCaption() const
{
    return m_ui->lblDivName->text();
}

DivisionFields CreateDivisionFrm::fields() const
{
    return {.divisionLabel = divisionCaption(),
            .sideLabel = lblside->text(),
            .formation = m_ui->CmbFormation->shownText(),
            .heading = m_ui->TxtHeading->text(),
            .spacing = m_ui->CmbSpacing->shownText(),
            .speed = m_ui->TxtSpeed->text(),
            .flagshipRow = flagshipRow(),
            .encumbered = m_ui->optEncumYES->isChecked()};
}

void CreateDivisionFrm::showPlacement(const QString& text)
{
    m_ui->LblPicMap->setText(text);
}

void CreateDivisionFrm::onActivate()
{
    const HourglassPointer hourglass;
    // Whatever fails on the way, the author can leave the dialog again.
    auto ready = qScopeGuard([this] { becomeReady(); });
    lblForceSide->setText(m_editor.overviewFrm().navy(side()));
    DivisionRecords& records = m_editor.divisionRecords();
    if (valueOf(ChknewBlueFlag) == 1) {
        records.countDivision(Side::Blue, -records.blueDivCount());
    }
    if (valueOf(ChknewRedFlag) == 1) {
        records.countDivision(Side::Red, -records.redDivCount());
    }
    if (valueOf(chkReturnFlag) == 0 && !beginJob()) {
        ready.dismiss();
    }
}

bool CreateDivisionFrm::beginJob()
{
    m_jobFailed = true;
    enableSettings(false);
    m_ui->optEncumYES->setEnabled(false);
    showLock(false);
    m_ui->GrdDivision->setEnabled(false);
    showForce();
    bool begun = true;
    if (creates()) {
        begun = beginCreation();
    } else {
        beginEdit();
    }
    m_jobFailed = false;
    return begun;
}

bool CreateDivisionFrm::beginCreation()
{
    DivisionRecords& records = m_editor.divisionRecords();
    records.countDivision(side(), 1);
    const int count = side() == Side::Blue ? records.blueDivCount() : records.redDivCount();
    if (count > divisionsPerSide) {
        refuseDivision();
        return false;
    }
    resetDialogForNewDivision();
    setValue(side() == Side::Blue ? ChknewBlueFlag : ChknewRedFlag, 0);
    const QString label = divisionLabel(count, m_editor.language());
    showName(label, label);
    return true;
}

void CreateDivisionFrm::refuseDivision()
{
    m_editor.services().messageBoxes.show(
        {.text = divisionText(DivisionText::TooManyDivisions, m_editor.language()), .title = QString()});
    setInputEnabled(true);
    DivisionRecords& records = m_editor.divisionRecords();
    cancelSub();
    const int count = side() == Side::Blue ? records.blueDivCount() : records.redDivCount();
    records.countDivision(side(), divisionsPerSide - count);
}

void CreateDivisionFrm::resetDialogForNewDivision()
{
    const DivisionVars vars = divisionDefaults(m_editor.language());
    clearGrid();
    showDivisionInDialog(vars, false);
    showName(vars.name, vars.name);
}

void CreateDivisionFrm::beginEdit()
{
    const auto rows = editDivisionRows();
    const auto chosen = std::ranges::find_if(rows, [this](const DivisionCommandRow& row) {
        return findChild<QCheckBox*>(QLatin1StringView(row.marker))->isChecked();
    });
    if (chosen == rows.end()) {
        return;
    }
    setValue(findChild<QCheckBox*>(QLatin1StringView(chosen->marker)), 0);
    const int number = static_cast<int>(chosen - rows.begin()) % divisionsPerSide + 1;
    const QString name = divisionLabel(number, Language::English);
    clearGrid();
    showName(name, divisionLabel(number, m_editor.language()));
    loadDivision(name, number);
}

void CreateDivisionFrm::loadDivision(const QString& name, int number)
{
    DivisionRecords& records = m_editor.divisionRecords();
    DivisionVars vars = divisionDefaults(m_editor.language());
    vars.number = QString::number(number);
    vars.name = name;
    vars.side = wordOf(side());
    records.loadDivisionKeys(name, vars);
    records.readDivData(name, m_editor.language(), vars);
    const DivisionShips ships = records.loadDivisionShips(name, lblside->text());
    const QString x = QString::number(ships.xPosition.value_or(0));
    const QString z = QString::number(ships.zPosition.value_or(0));
    showPlacement(x + QStringLiteral(" X ") + z);
    m_editor.mainFrm().txtXPosition->setText(x);
    m_editor.mainFrm().txtYPosition->setText(z);
    fillGrid(ships.lines, ships.flagshipRows);
    m_picMask->setGeometry(rect());
    m_picMask->raise();
    m_picMask->show();
    records.snapshotShipSections(ships.section);
    showDivisionInDialog(vars, records.isEncumbered(ships.section));
}

void CreateDivisionFrm::showDivisionInDialog(const DivisionVars& vars, bool encumbered)
{
    m_txtDivName->setText(vars.name);
    m_cmbDivName->showText(vars.name);
    m_cmbSide->showText(vars.side);
    m_ui->CmbFormation->showText(shownFormation(vars.formation, m_editor.language()));
    m_ui->TxtHeading->setText(vars.heading);
    m_ui->CmbSpacing->showText(vars.spacing);
    m_ui->TxtSpeed->setText(vars.speed);
    (encumbered ? m_ui->optEncumYES : m_ui->optEncumNO)->setChecked(true);
}

void CreateDivisionFrm::becomeReady()
{
    setValue(chkReturnFlag, 0);
    drawHeadingMark();
    m_picMask->hide();
    setInputEnabled(true);
    ShipEnabled();
    m_ui->cmdDivDataChng->setEnabled(true);
    if (m_jobFailed) {
        lockFailedJob();
    }
    showShipCount();
    leadToNextStep();
}

// The controls still hold the settings of the division before: nothing of them may be stored.
void CreateDivisionFrm::lockFailedJob()
{
    enableSettings(false);
    for (QPushButton* button : {m_ui->CmdAdd, m_ui->CmdFlagShip, m_ui->CmdEditShip, m_ui->CmdNewDivision,
                                m_ui->cmdDivDataChng, m_ui->CmdSaveData, m_ui->cmdOK}) {
        button->setEnabled(false);
    }
}

void CreateDivisionFrm::showForce()
{
    const bool blue = side() == Side::Blue;
    const QColor& ground = blue ? forceABlue : forceBRed;
    setGround(m_ui->fraHeader, ground, Qt::white);
    m_ui->PicDivName->setBackColor(ground);
    m_ui->PicDivName->setForeColor(Qt::white);
    m_ui->lblForce->setText(
        QStringLiteral("%1, %2").arg((blue ? forceA : forceB).in(m_editor.language()), lblForceSide->text()));
}

void CreateDivisionFrm::showName(const QString& drawn, const QString& label)
{
    m_ui->PicDivName->clear();
    m_ui->PicDivName->print(drawn);
    m_ui->PicDivName->setAccessibleName(drawn);
    m_ui->lblDivName->setText(label);
    m_ui->GrdDivision->setAccessibleName(label);
}

void CreateDivisionFrm::ShipEnabled()
{
    const bool ships = !cell(0, 0).isEmpty();
    if (!ships) {
        for (QWidget* control : settingControls()) {
            if (control != m_ui->optEncumNO) {
                control->setEnabled(false);
            }
        }
    }
    for (QPushButton* button :
         {m_ui->CmdFlagShip, m_ui->CmdEditShip, m_ui->CmdSaveData, m_ui->cmdOK, m_ui->CmdNewDivision}) {
        button->setEnabled(ships);
    }
    m_ui->CmdAdd->setEnabled(true);
    m_ui->CmdSaveData->setVisible(creates());
    m_ui->CmdCancel->setVisible(creates());
    m_ui->cmdOK->setVisible(!creates());
    m_ui->CmdEditCancel->setVisible(!creates());
    if (!creates()) {
        m_ui->CmdFlagShip->setEnabled(true);
    }
}

} // namespace torvane
