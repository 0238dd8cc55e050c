#include "ship_state/ship_data_frm.h"

#include "platform/control_captions.h"
#include "platform/list_combo.h"
#include "platform/mnemonics.h"
#include "platform/step_button.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "ship_state/general_page.h"
#include "ship_state/main_guns_page.h"
#include "ship_state/secondary_page.h"
#include "ship_state/ship_sections.h"
#include "ship_state/systems_page.h"
#include "ship_state/torpedo_page.h"
#include "ship_state/value_label.h"
#include "ui_ship_data_frm.h"

#include <QCheckBox>
#include <QShortcut>

namespace torvane {

namespace {

constexpr qsizetype typeCharacters = 2; // of a menu caption
constexpr int headCharacters = 40;
constexpr double headSize = 1.35; // of the window's letters

} // namespace

ShipDataFrm::ShipDataFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("ShipDataFrm"), Qt::Dialog),
      lblShipName(new ValueLabel(headCharacters, this)),
      m_ui(std::make_unique<Ui::ShipDataFrm>())
{
    m_ui->setupUi(this);
    lblShipName->setObjectName(QStringLiteral("lblShipName"));
    lblShipName->setFrameShape(QFrame::NoFrame);
    QFont head = lblShipName->font();
    head.setBold(true);
    head.setPointSizeF(head.pointSizeF() * headSize);
    lblShipName->setFont(head);
    m_ui->layout->insertWidget(0, lblShipName);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    setStyleSheet(QStringLiteral("QCheckBox:checked { color: %1 }").arg(destroyedColor.name()));
    addPages();
    connectKeys();
    on(m_ui->cmdSave, &QPushButton::clicked, [this] { save(); });
    on(m_ui->CmdCancel, &QPushButton::clicked, [this] { cancel(); });
}

ShipDataFrm::~ShipDataFrm() = default;

void ShipDataFrm::addPages()
{
    const auto frame = [](std::size_t page) { return shipDataTabs.at(page).frame; };
    m_systems = new SystemsPage(m_data, frame(1));
    m_mainGuns = new MainGunsPage(m_data, frame(2));
    m_pages = {new GeneralPage(m_data, frame(0)), m_systems, m_mainGuns, new SecondaryPage(m_data, frame(3)),
               new TorpedoPage(m_data, frame(4))};
    for (ShipDataPage* page : m_pages) {
        m_ui->pages->addWidget(page);
        m_ui->TabStrip1->addTab(QString());
        connectPage(*page);
    }
    // The pages came behind the buttons.
    setTabOrder(previousInFocusChain(), m_ui->cmdSave);
    setTabOrder(m_ui->cmdSave, m_ui->CmdCancel);
    m_ui->TabStrip1->setExpanding(false);
    m_ui->TabStrip1->setUsesScrollButtons(false);
    on(m_ui->TabStrip1, &QTabBar::currentChanged, [this](int page) { m_ui->pages->setCurrentIndex(page); });
    on(m_systems, &SystemsPage::repairOpened, [this] { lockDialogForRepair(true); });
    on(m_systems, &SystemsPage::repairClosed, [this] { lockDialogForRepair(false); });
}

// Whatever a control changes, all pages show what came of it, also when the change failed half way.
void ShipDataFrm::connectPage(const ShipDataPage& page)
{
    const auto acting = [this](ShipDataPage::Action act) {
        return [this, act = std::move(act)] {
            act();
            showCondition();
        };
    };
    for (const ShipDataPage::Box& box : page.boxes()) {
        on(box.box, &QCheckBox::clicked, [box] { *box.destroyed = box.box->isChecked(); });
    }
    for (const ShipDataPage::Stepper& stepper : page.steppers()) {
        const auto step = [&](Step direction) { return acting([=] { stepper.step(direction); }); };
        on(stepper.up, &StepButton::clicked, step(Step::Up));
        on(stepper.down, &StepButton::clicked, step(Step::Down));
        for (const StepButton* button : {stepper.up, stepper.down}) {
            on(button, &StepButton::plusPressed, step(Step::Up));
            on(button, &StepButton::minusPressed, step(Step::Down));
        }
    }
    for (const ShipDataPage::List& list : page.lists()) {
        on(list.list, &ListCombo::activated, [list] { *list.shown = list.list->shownText(); });
    }
    for (const ShipDataPage::Button& button : page.buttons()) {
        on(button.button, &QAbstractButton::clicked, acting(button.press));
    }
    for (const ShipDataPage::Keys& keys : page.keys()) {
        if (keys.plus) {
            on(keys.button, &StepButton::plusPressed, acting(keys.plus));
        }
        if (keys.minus) {
            on(keys.button, &StepButton::minusPressed, acting(keys.minus));
        }
    }
}

void ShipDataFrm::connectKeys()
{
    const std::array keys{std::pair{QKeySequence(Qt::CTRL | Qt::Key_PageDown), 1},
                          std::pair{QKeySequence(Qt::CTRL | Qt::Key_PageUp), -1},
                          std::pair{QKeySequence(Qt::CTRL | Qt::Key_Tab), 1},
                          std::pair{QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab), -1}};
    for (const auto& [key, direction] : keys) {
        on(new QShortcut(key, this), &QShortcut::activated,
           [this, direction = direction] { turnPage(direction); });
    }
}

void ShipDataFrm::turnPage(int direction)
{
    QTabBar* tabs = m_ui->TabStrip1;
    if (tabs->isEnabled()) {
        tabs->setCurrentIndex((tabs->currentIndex() + direction + tabs->count()) % tabs->count());
    }
}

void ShipDataFrm::onLoad()
{
    EditorForm::onLoad();
    showCondition();
}

void ShipDataFrm::applyCaptions(Language language)
{
    applyCaptionTable(*this, shipDataCaptions, language);
    const QString taken = QString(mnemonicOf(m_ui->cmdSave->text())) + mnemonicOf(m_ui->CmdCancel->text());
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_ui->TabStrip1->setTabText(static_cast<int>(i), shipDataTabs.at(i).caption.in(language));
        m_pages.at(i)->setTitle(shipDataTabs.at(i).title.in(language));
        m_pages.at(i)->applyCaptions(language, taken);
    }
    m_ui->TabStrip1->setToolTip(shipDataText(ShipDataText::PageTip, language));
    m_ui->TabStrip1->setAccessibleDescription(m_ui->TabStrip1->toolTip());
    m_ui->cmdSave->setToolTip(shipDataText(ShipDataText::SaveTip, language));
    m_ui->CmdCancel->setToolTip(shipDataText(ShipDataText::CancelTip, language));
}

void ShipDataFrm::showCondition()
{
    for (ShipDataPage* page : m_pages) {
        page->showCondition();
    }
}

void ShipDataFrm::onActivate()
{
    const QString shortName = lblShipName->text().mid(typeCharacters).trimmed();
    try {
        showShip(shortName);
    } catch (const RuntimeError&) {
        // What could not be shown is not saved over a ship.
        m_data.condition = ShipCondition();
        showCondition();
        throw;
    }
    showCondition();
}

// The catalogue has no short name of the Duncans that the menu shows, so that they are not looked for: they
// are shown against the class of the ship before. Kept.
void ShipDataFrm::showShip(const QString& shortName)
{
    ShipCatalogue& catalogue = m_editor.shipCatalogue();
    RecordSource& ships = catalogue.ShipDataB();
    ships.MoveFirst();
    if (isNamedDuncan(shortName)) {
        lblShipName->setText(QStringLiteral("DD ") + shortName);
    } else if (ships.findFirst(u"ShortName", shortName)) {
        lblShipName->setText(ships.value(u"Type") + u' ' + ships.value(u"Name"));
        loadClassLimits(m_data.limits, catalogue, ships.value(u"Class"));
        m_mainGuns->showClassTurrets();
        clearSystemChecks(m_data.condition);
    }
    loadShipState(shortName);
}

// A ship that has no section leaves the dialog as it stands. Kept.
void ShipDataFrm::loadShipState(const QString& shortName)
{
    const WorkingProfile& profile = m_editor.workingProfile();
    const QString section = sectionToShow(profile, shortName);
    if (!section.isEmpty()) {
        loadRecord(
            m_data.condition, shortName, [&](QStringView key) { return profile.GetIniKey(section, key); },
            m_data.limits, m_editor.language());
    }
}

void ShipDataFrm::lockDialogForRepair(bool locked)
{
    m_ui->cmdSave->setDisabled(locked);
    m_ui->CmdCancel->setDisabled(locked);
    m_ui->TabStrip1->setDisabled(locked);
}

void ShipDataFrm::onCloseBox()
{
    if (m_ui->CmdCancel->isEnabled()) {
        cancel();
    }
}

// Without a section of the ship the keys go to the nameless one, which nothing reads. Kept.
void ShipDataFrm::save()
{
    const KeyValues record = recordOf(m_data.condition, m_data.limits, m_editor.language());
    WorkingProfile& profile = m_editor.workingProfile();
    const QString section = findShipSection(profile, m_data.condition.shortName, m_data.condition.shipClass);
    for (const auto& [key, value] : record) {
        profile.write(section, key, value);
    }
    leave();
}

void ShipDataFrm::cancel()
{
    leave();
}

void ShipDataFrm::leave()
{
    leaveTo(m_editor.mainFrm());
}

} // namespace torvane
