#include "ship_selection/ship_dbase_frm.h"

#include "divisions/create_division_frm.h"
#include "platform/control_captions.h"
#include "platform/pointer.h"
#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "ship_selection/ship_grid.h"
#include "store/force_sizes.h"
#include "ui_ship_dbase_frm.h"

#include <QKeyEvent>
#include <QScopeGuard>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <utility>

namespace torvane {

ShipDBaseFrm::ShipDBaseFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("ShipDBaseFrm"), Qt::Dialog),
      m_ui(std::make_unique<Ui::ShipDBaseFrm>()),
      m_selection(editor.scratchFiles(), editor.workingProfile(), editor.shipRecords(), m_browser),
      m_model(new ShipGridModel(m_browser, m_selection, this))
{
    m_ui->setupUi(this);
    m_ui->Grid1->setModel(m_model);
    // The list and the grid are hidden with the window; the window keeps its shape.
    for (QWidget* view : {static_cast<QWidget*>(m_ui->Grid1), static_cast<QWidget*>(m_ui->LstDivision)}) {
        QSizePolicy policy = view->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        view->setSizePolicy(policy);
    }
    connectBrowser();
    connectSelection();
}

ShipDBaseFrm::~ShipDBaseFrm() = default;

void ShipDBaseFrm::connectBrowser()
{
    const std::array filters{std::pair{m_ui->optFilterRN, "RN"}, std::pair{m_ui->optFilterUSN, "USN"},
                             std::pair{m_ui->optFilterKM, "KM"}, std::pair{m_ui->optFilterIJN, "IJN"}};
    for (const auto& [option, navy] : filters) {
        on(option, &QRadioButton::clicked, [this, navy = navy] { filterBy(navy); });
    }
    const std::array sorts{
        std::pair{m_ui->OptClass, ShipColumn::Type}, std::pair{m_ui->OptName, ShipColumn::Name},
        std::pair{m_ui->OptType, ShipColumn::Class}, std::pair{m_ui->OptNavy, ShipColumn::HitPts}};
    for (const auto& [option, column] : sorts) {
        on(option, &QRadioButton::clicked, [this, column = column] { sortBy(column); });
    }
    on(m_ui->CmdSortSrch, &QPushButton::clicked, [this] { toggleSortMode(); });
    on(m_ui->CmdShipSrch, &QPushButton::clicked, [this] { search(); });
    on(m_ui->ChkScrollBars, &QCheckBox::toggled,
       [this](bool both) { m_ui->Grid1->showBothScrollBars(both); });
    on(m_ui->Grid1, &ShipGrid::emptyGridPressed,
       [this] { refill([this] { m_browser.pressHeaderRow(m_ui->Grid1->currentColumn()); }); });
}

void ShipDBaseFrm::connectSelection()
{
    on(m_ui->Grid1, &ShipGrid::clicked, [this](const QModelIndex& cell) {
        printCell(cell.row(), cell.column());
        pick(cell.row());
    });
    on(m_ui->Grid1, &ShipGrid::enterPressed, [this](int row) { pick(row); });
    on(m_ui->LstDivision, &QListWidget::itemSelectionChanged, [this] {
        const QModelIndexList selected = m_ui->LstDivision->selectionModel()->selectedRows();
        m_selection.select(selected.isEmpty() ? -1 : selected.first().row());
    });
    on(m_ui->CmdRemove, &QPushButton::clicked, [this] { remove(); });
    auto* const deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), m_ui->LstDivision);
    deleteKey->setContext(Qt::WidgetShortcut);
    deleteKey->setAutoRepeat(false); // a key that is held down removes one ship
    on(deleteKey, &QShortcut::activated, [this] { remove(); });
    on(m_ui->CmdClear, &QPushButton::clicked, [this] { clearAll(); });
    on(m_ui->CmdCancel, &QPushButton::clicked, [this] { cancel(); });
    on(m_ui->CmdKeepShips, &QPushButton::clicked, [this] { keep(); });
}

void ShipDBaseFrm::applyCaptions(Language language)
{
    applyCaptionTable(*this, shipCaptions, language);
    applyControlTips(*this, shipTips, language);
    m_model->setLanguage(language);
    m_ui->Grid1->setAccessibleName(shipText(ShipText::GridName, language));
    m_ui->LstDivision->setAccessibleName(mainText(MainText::Division, language));
    m_ui->PicTest->setAccessibleName(shipText(ShipText::ClickedName, language));
}

// Tab makes a line of the list the current one without selecting it: the first arrow key selects that line,
// not the next.
bool ShipDBaseFrm::eventFilter(QObject* watched, QEvent* event)
{
    if (Form::eventFilter(watched, event)) {
        return true;
    }
    if (event->type() != QEvent::KeyPress || watched != m_ui->LstDivision) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    QListWidgetItem* const line = m_ui->LstDivision->currentItem();
    if ((key != Qt::Key_Up && key != Qt::Key_Down) || !line || line->isSelected()) {
        return false;
    }
    line->setSelected(true);
    return true;
}

void ShipDBaseFrm::onLoad()
{
    EditorForm::onLoad();
    m_ui->Grid1->sizeColumns(ShipLists(), m_editor.language());
    m_selection.countForces();
    showSelection();
    m_readAtLoad = true;
    loadShips();
}

void ShipDBaseFrm::loadShips()
{
    ShipLists lists(m_editor.shipCatalogue().ShipDataB());
    m_ui->Grid1->sizeColumns(lists, m_editor.language());
    m_model->refill([&] { m_browser.setLists(std::move(lists)); });
}

void ShipDBaseFrm::onActivate()
{
    // At once, so that what fails below leaves a window that can be used and left.
    m_ui->Grid1->show();
    m_ui->LstDivision->show();
    m_ui->Grid1->setFocus();
    m_sortMode = 0;
    if (!m_browser.hasLists() && !std::exchange(m_readAtLoad, false)) {
        runHandler([this] { loadShips(); });
    }
    openDivision();
}

void ShipDBaseFrm::openDivision()
{
    const HourglassPointer hourglass;
    const CreateDivisionFrm& dialog = m_editor.createDivisionFrm();
    m_selection.open(sideOfLabel(dialog.lblside->text()), dialog.divisionCaption(),
                     mainText(MainText::Division, m_editor.language()));
    m_ui->fraDivision->setTitle(dialog.divisionCaption());
    showSelection();
    selectForceNavy();
    markSelectedShips();
}

// Every fill ends on a data row, also one that fails: a grid without a current row takes no pick.
void ShipDBaseFrm::refill(const std::function<void()>& fill)
{
    const auto onDataRow = qScopeGuard([this] { m_ui->Grid1->goToFirstRow(); });
    m_model->refill(fill);
}

void ShipDBaseFrm::selectForceNavy()
{
    const QString force = m_editor.createDivisionFrm().lblForceSide->text();
    const ListedNavy* const navy = navyOfForce(force, m_editor.language());
    if (!navy) {
        return;
    }
    const std::array options{m_ui->optFilterRN, m_ui->optFilterUSN, m_ui->optFilterKM, m_ui->optFilterIJN};
    options.at(static_cast<std::size_t>(navy - listedNavies.data()))->setChecked(true);
    refill([&] { m_browser.selectForceNavy(force, m_editor.language()); });
}

void ShipDBaseFrm::filterBy(const char* navy)
{
    const HourglassPointer hourglass;
    refill([&] { m_browser.filterNavy(QString::fromLatin1(navy)); });
    markSelectedShips();
}

void ShipDBaseFrm::sortBy(ShipColumn column)
{
    const HourglassPointer hourglass;
    try {
        refill([&] { m_browser.sortShips(column); });
    } catch (const RuntimeError&) {
        markSelectedShips();
        throw;
    }
    markSelectedShips();
}

void ShipDBaseFrm::markSelectedShips()
{
    m_browser.markSelectedShips(m_selection.readTrack());
    m_model->showMarks();
}

void ShipDBaseFrm::toggleSortMode()
{
    const bool sorting = m_sortMode == 0;
    m_sortMode = sorting ? 1 : 0;
    for (QRadioButton* option : {m_ui->OptType, m_ui->OptName, m_ui->OptClass, m_ui->OptNavy}) {
        option->setEnabled(sorting);
    }
    for (QRadioButton* option :
         {m_ui->optFilterRN, m_ui->optFilterKM, m_ui->optFilterUSN, m_ui->optFilterIJN}) {
        option->setEnabled(!sorting);
    }
    m_ui->CmdSortSrch->setText(shipText(sorting ? ShipText::SortOn : ShipText::SortOff, m_editor.language()));
    if (!sorting) {
        // Fills without marking what is picked. Kept; the colour of picked rows shows it all the same.
        selectForceNavy();
    }
}

void ShipDBaseFrm::search()
{
    const Language language = m_editor.language();
    const QString answer = m_editor.services()
                               .inputBoxes
                               .ask(shipText(ShipText::SearchTitle, language),
                                    shipText(ShipText::SearchPrompt, language), QString())
                               .value_or(QString());
    if (answer.isEmpty()) {
        return;
    }
    if (const std::optional<int> row = m_browser.find(answer)) {
        if (*row < m_browser.rowCount()) {
            m_ui->Grid1->goToRow(*row);
            m_ui->Grid1->setFocus();
        }
        return;
    }
    m_editor.services().messageBoxes.show(
        {.text = shipText(ShipText::NotFound, language) + QLatin1Char(' ') + answer,
         .title = shipText(ShipText::NotFoundTitle, language),
         .icon = MessageBox::Icon::Exclamation});
}

void ShipDBaseFrm::printCell(int row, int column)
{
    m_ui->PicTest->clear();
    m_ui->PicTest->print(m_browser.text(row, static_cast<ShipColumn>(column)));
}

void ShipDBaseFrm::pick(int row)
{
    const std::optional<SelectionMessage> refusal = m_selection.pick(row);
    showSelection();
    if (refusal) {
        tell(*refusal);
    }
}

void ShipDBaseFrm::remove()
{
    const std::optional<SelectionMessage> refusal = m_selection.remove();
    showSelection();
    if (refusal) {
        tell(*refusal);
    }
}

void ShipDBaseFrm::clearAll()
{
    const HourglassPointer hourglass;
    m_selection.clear();
    showSelection();
}

void ShipDBaseFrm::onCloseBox()
{
    cancel();
}

void ShipDBaseFrm::cancel()
{
    leave();
    clearAll();
}

void ShipDBaseFrm::keep()
{
    if (const std::optional<SelectionMessage> refusal = m_selection.keep()) {
        tell(*refusal);
        return;
    }
    CreateDivisionFrm& dialog = m_editor.createDivisionFrm();
    const DivisionFields fields = dialog.fields();
    const bool german = valueOf(m_editor.mainFrm().chkGermanVersion) == 1;
    const QString number = QString::number(m_selection.divisionNumber());
    m_editor.divisionRecords().writeDivData(
        {.number = number,
         .name = storedDivisionName(number),
         .side = wordOf(m_selection.side()),
         .formation = german ? storedFormation(fields.formation) : fields.formation,
         .heading = fields.heading,
         .spacing = fields.spacing,
         .speed = fields.speed});
    dialog.takeShips(m_selection.entries(),
                     mainText(MainText::Division, m_editor.language()) + QLatin1Char(' ') + number);
    leave();
    // What is kept must not be cleared by a close box that comes before the next opening has read its list.
    m_selection.close();
    showSelection();
}

void ShipDBaseFrm::leave()
{
    leaveTo(m_editor.createDivisionFrm());
    m_ui->Grid1->hide();
    m_ui->LstDivision->hide();
}

void ShipDBaseFrm::tell(SelectionMessage message)
{
    const SelectionMessageRow& row = selectionMessage(message);
    m_editor.services().messageBoxes.show(
        {.text = row.text.in(m_editor.language()), .title = row.title.in(m_editor.language())});
}

void ShipDBaseFrm::showSelection()
{
    const QSignalBlocker quiet(m_ui->LstDivision);
    m_ui->LstDivision->clear();
    m_ui->LstDivision->addItems(m_selection.entries());
    m_ui->LstDivision->setCurrentRow(m_selection.selectedIndex());
    m_model->showMarks();
    const bool isForceA = m_selection.side() == Side::Blue;
    showCount(m_ui->lblDivCount, ShipText::DivisionCount, m_selection.divShipCount(), shipsPerDivision);
    showCount(m_ui->lblForceCount, isForceA ? ShipText::ForceACount : ShipText::ForceBCount,
              m_selection.forceShipCount(), shipsPerForce);
    showCount(m_ui->lblScenarioCount, ShipText::ScenarioCount,
              m_selection.blueShipCount() + m_selection.redShipCount(), shipsPerScenario);
}

// A limit that is reached stands out.
void ShipDBaseFrm::showCount(QLabel* label, ShipText text, int count, int limit)
{
    label->setText(shipText(text, m_editor.language()).arg(std::max(count, 0)).arg(limit));
    QFont font = label->font();
    font.setBold(count >= limit);
    label->setFont(font);
}

} // namespace torvane
