#include "divisions/create_division_frm.h"
#include "divisions/division_settings.h"
#include "divisions/division_texts.h"
#include "divisions/speed_limits.h"
#include "overview/enviro_frm.h"
#include "platform/list_combo.h"
#include "platform/number_text.h"
#include "platform/picture_box.h"
#include "platform/step_button.h"
#include "platform/svg_picture.h"
#include "shell/editor.h"
#include "ship_selection/ship_dbase_frm.h"
#include "store/force_sizes.h"
#include "ui_create_division_frm.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopeGuard>

// The settings of the division dialog, which are locked or open, and its list of ships.

namespace torvane {

namespace {

constexpr QSize lockSize(18, 18);
const QColor lockedLine(150, 150, 150);
const QColor openLine(31, 154, 86);
/// Inks on the light windows of one desktop and on the dark ones of another.
struct Ink
{
    QColor onLight;
    QColor onDark;

    QColor on(const QPalette& palette) const
    {
        return palette.color(QPalette::Window).lightness() < 128 ? onDark : onLight;
    }
};
const Ink openInk{QColor(15, 107, 58), QColor(120, 220, 160)};
const Ink lockedInk{QColor(72, 72, 72), QColor(190, 190, 190)};
const QColor bowColor(255, 255, 255);
constexpr int bowSide = 4;

constexpr int shipColumn = 0;
constexpr int flagColumn = 1;
/// 4500 and 1000 twips.
constexpr std::array columnWidths{300, 67};
constexpr int rowHeight = 24;
constexpr QLatin1StringView flagMark{"FL"};

} // namespace

void CreateDivisionFrm::keepLockedReadable()
{
    std::vector<QWidget*> controls = settingControls();
    controls.push_back(m_ui->optEncumYES);
    for (QWidget* control : controls) {
        QPalette colors = control->palette();
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
            colors.setColor(QPalette::Disabled, role, lockedInk.on(palette()));
        }
        control->setPalette(colors);
    }
}

void CreateDivisionFrm::connectSettings()
{
    on(m_ui->cmdDivDataChng, &QPushButton::clicked, [this] { openSettings(); });
    on(m_ui->cmdKeepDivData, &QPushButton::clicked, [this] { keepSettings(); });
    on(m_ui->CmdClckWse, &QPushButton::clicked, [this] { turnHeading(headingStep); });
    on(m_ui->CmdCntClckWse, &QPushButton::clicked, [this] { turnHeading(-headingStep); });
    on(m_ui->TxtHeading, &QLineEdit::textChanged, [this] { headingTyped(); });
    on(m_ui->cmdSpeedVal, &QPushButton::clicked, [this] { stepSpeed(-1); });
    on(m_ui->cmdSpeedVal2, &QPushButton::clicked, [this] { stepSpeed(1); });
}

std::vector<QWidget*> CreateDivisionFrm::settingControls() const
{
    return {m_txtDivName,     m_cmbSide,           m_ui->CmbFormation, m_ui->TxtHeading,
            m_ui->CmdClckWse, m_ui->CmdCntClckWse, m_ui->cmdSpeedVal,  m_ui->cmdSpeedVal2,
            m_ui->CmbSpacing, m_ui->TxtSpeed,      m_ui->optEncumNO};
}

void CreateDivisionFrm::enableSettings(bool enabled)
{
    for (QWidget* control : settingControls()) {
        control->setEnabled(enabled);
    }
}

void CreateDivisionFrm::openSettings()
{
    enableSettings(true);
    applyTransportEncumbrance();
    showLock(true);
    // A division can't be saved with its settings open, neither a new one nor an edited one.
    for (QPushButton* button : {m_ui->CmdNewDivision, m_ui->CmdAdd, m_ui->CmdEditShip, m_ui->CmdFlagShip,
                                m_ui->CmdSaveData, m_ui->cmdOK}) {
        button->setEnabled(false);
    }
    leadToNextStep();
    m_ui->TxtHeading->setFocus();
    m_ui->TxtHeading->selectAll();
}

void CreateDivisionFrm::keepSettings()
{
    enableSettings(false);
    m_ui->optEncumYES->setEnabled(false);
    const DivisionVars vars = readDialogFields(fields());
    const auto locked = qScopeGuard([this] {
        ShipEnabled();
        showLock(false);
        leadToNextStep();
    });
    m_editor.divisionRecords().writeDivData(vars);
}

// Colours of the frame lines, the lock, and which of the two buttons stands in their common place.
void CreateDivisionFrm::showLock(bool open)
{
    for (QWidget* line : {m_ui->linTop, m_ui->linLeft, m_ui->linRight, m_ui->linBottom}) {
        QPalette colors = line->palette();
        colors.setColor(QPalette::Window, open ? openLine : lockedLine);
        line->setPalette(colors);
    }
    const QString icon = open ? QStringLiteral(":/icons/open.svg") : QStringLiteral(":/icons/locked.svg");
    m_ui->imgLock->setPixmap(svgPicture(icon, lockSize, devicePixelRatioF()));
    m_ui->lblLock->setText(
        divisionText(open ? DivisionText::SettingsOpen : DivisionText::SettingsLocked, m_editor.language()));
    QPalette ink = m_ui->fraSettings->palette();
    if (open) {
        ink.setColor(QPalette::WindowText, openInk.on(palette()));
    }
    m_ui->lblLock->setPalette(ink);
    m_ui->cmdDivDataChng->setVisible(!open);
    m_ui->cmdKeepDivData->setVisible(open);
    m_cmbDivName->setVisible(!open);
}

void CreateDivisionFrm::applyTransportEncumbrance()
{
    if (transportingForce(m_editor.workingProfile()) == side()) {
        m_ui->optEncumYES->setEnabled(true);
    }
}

void CreateDivisionFrm::turnHeading(int degrees)
{
    m_ui->TxtHeading->setText(turnedHeading(m_ui->TxtHeading->text(), degrees));
    drawHeadingMark();
}

void CreateDivisionFrm::headingTyped()
{
    const std::optional<QString> heading = typedHeading(m_ui->TxtHeading->text());
    if (!heading) {
        m_editor.services().messageBoxes.show(
            {.text = divisionText(DivisionText::HeadingRange, m_editor.language()),
             .title = divisionText(DivisionText::OutOfRangeTitle, m_editor.language()),
             .icon = MessageBox::Icon::Information});
        m_ui->TxtHeading->setText(QStringLiteral("0"));
    } else if (*heading != m_ui->TxtHeading->text()) {
        m_ui->TxtHeading->setText(*heading);
    } else {
        drawHeadingMark();
    }
}

void CreateDivisionFrm::drawHeadingMark()
{
    const auto heading = static_cast<std::int16_t>(m_ui->TxtHeading->text().toInt());
    const HeadingMark mark = headingMark({.x = m_centre.x(), .z = m_centre.y()}, heading);
    const QPoint bow(mark.bow.x, mark.bow.z);
    PictureBox* picture = m_ui->fraCompass->picture();
    const QColor lineColor = picture->foreColor();
    picture->clear();
    picture->line(bow, QPoint(mark.stern.x, mark.stern.z));
    picture->setForeColor(bowColor);
    const QPoint corner = bow - QPoint(bowSide / 2, bowSide / 2);
    picture->filledBox(corner, corner + QPoint(bowSide - 1, bowSide - 1));
    picture->setForeColor(lineColor);
    picture->setAccessibleName(m_ui->TxtHeading->text() + QStringLiteral("°"));
}

int CreateDivisionFrm::divisionNumber() const
{
    return toInt16(numberValue(readDialogFields(fields()).number));
}

void CreateDivisionFrm::stepSpeed(int step)
{
    m_ui->TxtSpeed->setText(steppedSpeed(m_ui->TxtSpeed->text(), step));
    const DivisionSpeeds division{.listedShips =
                                      m_editor.divisionRecords().countDivisionShips(side(), divisionNumber()),
                                  .ships = gridShips(),
                                  .seaState = m_editor.enviroFrm().values().seaState};
    m_ui->TxtSpeed->setText(limitSpeed(m_ui->TxtSpeed->text(), division, m_editor.shipCatalogue()));
}

void CreateDivisionFrm::makeGrid()
{
    QTableWidget* grid = m_ui->GrdDivision;
    int width = 2 * grid->frameWidth();
    for (int column = 0; column < std::ssize(columnWidths); ++column) {
        grid->setColumnWidth(column, columnWidths.at(static_cast<std::size_t>(column)));
        width += grid->columnWidth(column);
    }
    grid->verticalHeader()->setDefaultSectionSize(rowHeight);
    grid->verticalHeader()->setMinimumSectionSize(rowHeight);
    grid->setFixedSize(width, shipsPerDivision * rowHeight + 2 * grid->frameWidth());
    // Disabled it is still read.
    QPalette colors = grid->palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::Base, QPalette::AlternateBase}) {
        colors.setColor(QPalette::Disabled, role, colors.color(QPalette::Active, role));
    }
    grid->setPalette(colors);
    clearGrid();
    on(grid, &QTableWidget::cellClicked, [this](int row, int) { pickFlagship(row); });
}

QString CreateDivisionFrm::cell(int row, int column) const
{
    return m_ui->GrdDivision->item(row, column)->text();
}

void CreateDivisionFrm::setCell(int row, int column, const QString& text)
{
    m_ui->GrdDivision->item(row, column)->setText(text);
}

void CreateDivisionFrm::clearGrid()
{
    fillGrid({}, {});
}

void CreateDivisionFrm::fillGrid(const QStringList& lines, const QList<int>& flagshipRows)
{
    QTableWidget* grid = m_ui->GrdDivision;
    if (lines.size() > shipSections) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("Subscript out of range: %1 ships in %2")
                               .arg(lines.size())
                               .arg(m_ui->lblDivName->text()));
    }
    grid->clearContents();
    const int rows = std::max(shipsPerDivision, static_cast<int>(lines.size()));
    grid->setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        auto* flag = new QTableWidgetItem(flagshipRows.contains(row) ? flagMark : QString());
        flag->setTextAlignment(Qt::AlignCenter);
        grid->setItem(row, shipColumn, new QTableWidgetItem(lines.value(row)));
        grid->setItem(row, flagColumn, flag);
    }
    grid->setCurrentCell(-1, -1);
}

QStringList CreateDivisionFrm::gridShips() const
{
    QStringList ships;
    for (int row = 0; row < m_ui->GrdDivision->rowCount(); ++row) {
        if (!cell(row, shipColumn).isEmpty()) {
            ships.append(cell(row, shipColumn));
        }
    }
    return ships;
}

std::optional<int> CreateDivisionFrm::flagshipRow() const
{
    for (int row = 0; row < shipsPerDivision; ++row) {
        if (cell(row, flagColumn) == flagMark) {
            return row;
        }
    }
    return std::nullopt;
}

void CreateDivisionFrm::takeShips(const QStringList& entries, const QString& caption)
{
    m_ui->lblDivName->setText(caption);
    fillGrid(entries, {0});
    showShipCount();
}

void CreateDivisionFrm::showShipCount()
{
    const auto ships = gridShips().size();
    const DivisionText text = ships == 0 ? DivisionText::NoShips : DivisionText::ShipCount;
    const QString caption = divisionText(text, m_editor.language());
    m_ui->lblShips->setText(ships == 0 ? caption : caption.arg(ships));
}

void CreateDivisionFrm::armGrid()
{
    m_ui->GrdDivision->setEnabled(true);
    m_ui->lblShips->setText(divisionText(DivisionText::PickFlagship, m_editor.language()));
    m_ui->GrdDivision->setFocus();
    m_ui->GrdDivision->setCurrentCell(flagshipRow().value_or(0), shipColumn);
}

void CreateDivisionFrm::pickFlagship(int row)
{
    if (row < 0 || cell(row, shipColumn).isEmpty()) {
        return;
    }
    for (int other = 0; other < shipsPerDivision; ++other) {
        setCell(other, flagColumn, QString());
    }
    setCell(row, flagColumn, flagMark);
    const bool stored =
        !creates() && m_editor.divisionRecords().writeFlagship(readDialogFields(fields()), row);
    m_ui->GrdDivision->setEnabled(stored);
    if (!stored) {
        m_ui->GrdDivision->setCurrentCell(-1, -1);
    }
    showShipCount();
    leadToNextStep();
}

void CreateDivisionFrm::openShips()
{
    ShipDBaseFrm& ships = m_editor.shipDBaseFrm();
    setValue(chkReturnFlag, 1);
    ships.openOver(*this);
}

// What Enter does, and where the focus goes: out of a job that failed; else the ships first, then the
// settings while they are open, then the save.
QPushButton* CreateDivisionFrm::nextStep() const
{
    if (m_jobFailed) {
        return creates() ? m_ui->CmdCancel : m_ui->CmdEditCancel;
    }
    if (!m_ui->cmdKeepDivData->isHidden()) {
        return m_ui->cmdKeepDivData;
    }
    if (cell(0, shipColumn).isEmpty()) {
        return m_ui->CmdAdd;
    }
    return creates() ? m_ui->CmdSaveData : m_ui->cmdOK;
}

void CreateDivisionFrm::leadToNextStep()
{
    QPushButton* next = nextStep();
    for (QPushButton* button : findChildren<QPushButton*>()) {
        if (qobject_cast<StepButton*>(button) == nullptr) {
            // A button that takes Enter by its focus would lose the default with it.
            button->setAutoDefault(button != next);
            button->setDefault(button == next);
        }
    }
    next->setFocus();
}

// In the list Enter and the space bar pick where a click picks.
bool CreateDivisionFrm::eventFilter(QObject* watched, QEvent* event)
{
    if (Form::eventFilter(watched, event)) {
        return true;
    }
    if (event->type() != QEvent::KeyPress || watched != m_ui->GrdDivision) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space) {
        return false;
    }
    runHandler([this] { pickFlagship(m_ui->GrdDivision->currentRow()); });
    return true;
}

} // namespace torvane
