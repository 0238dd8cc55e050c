#include "divisions/create_division_frm.h"
#include "flood/invariants.h"
#include "platform/list_combo.h"
#include "shell/editor.h"
#include "ship_selection/ship_dbase_frm.h"
#include "ship_state/ship_data_frm.h"
#include "store/profile_keys.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTableWidget>

namespace torvane::testing {

namespace {

/// What a control of a window shows.
QString shown(const QWidget& window, const char* control)
{
    const QLatin1StringView name(control);
    if (const auto* box = window.findChild<QLineEdit*>(name)) {
        return box->text();
    }
    if (const auto* list = window.findChild<ListCombo*>(name)) {
        return list->shownText();
    }
    if (const auto* text = window.findChild<QPlainTextEdit*>(name)) {
        return text->toPlainText();
    }
    const auto* label = window.findChild<QLabel*>(name);
    return label == nullptr ? QStringLiteral("no such control") : label->text();
}

/// A control that shows a key of the scenario's section as it stands there.
struct ShownKey
{
    const char* control;
    QStringView key;
};

constexpr ShownKey overviewShows[] = {
    {"TxtTitle", u"TITLE"},
    {"RichTxtDescrip", u"DESCRIPTION_LINE0"},
    {"txtDisengageA", u"BLUE_DISENGAGE_HEADING"},
    {"txtDisengageB", u"RED_DISENGAGE_HEADING"},
    {"txtVPmodsA", u"BLUE_VICTORY_MODS"},
    {"txtVPmodsB", u"RED_VICTORY_MODS"},
};
constexpr ShownKey environmentShows[] = {
    {"TxtStartTime", u"START_TIME"}, {"TxtSunrise", u"SUNRISE"},           {"TxtSunset", u"SUNSET"},
    {"TxtWindSpd", u"WIND_SPEED"},   {"TxtWindDir", u"WIND_DIRECTION"},    {"ComboSeaState", u"SEASTATE"},
    {"ComboYear", u"YEAR"},          {"lblGmLenHour", u"GAMELENGTH_HOUR"},
};

QString difference(const QString& what, const QString& isShown, const QString& isStored)
{
    return isShown.simplified() == isStored.simplified()
               ? QString()
               : QStringLiteral("%1 shows \"%2\" and not \"%3\"").arg(what, isShown, isStored);
}

template <std::size_t count>
QString scenarioFault(Editor& editor, const Form& dialog, const ShownKey (&keys)[count])
{
    for (const ShownKey& row : keys) {
        const QString stored = editor.workingProfile().GetIniKey(u"SCENARIODATA", row.key);
        const QString fault = difference(QLatin1StringView(row.control), shown(dialog, row.control), stored);
        if (stored != invalidValue && !fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}

QStringList linesOf(Editor& editor, const CreateDivisionFrm& division, bool settings)
{
    const Side side = sideOfLabel(division.lblside->text());
    const int number = division.divisionCaption().right(1).toInt();
    const ScratchFiles& files = editor.scratchFiles();
    const QString path = settings ? files.divDataFile(side, number) : files.divisionFile(side, number);
    return QFileInfo::exists(path) ? files.read(path) : QStringList();
}

QString divisionFault(Editor& editor, const CreateDivisionFrm& dialog)
{
    const auto* grid = dialog.findChild<QTableWidget*>(QStringLiteral("GrdDivision"));
    QStringList rows;
    for (int row = 0; row < grid->rowCount() && !grid->item(row, 0)->text().isEmpty(); ++row) {
        rows.append(grid->item(row, 0)->text());
    }
    const bool creates = valueOf(dialog.chkCreate) == 1;
    // A division that is created starts without ships, also where a cancelled one of its number left files.
    const QStringList listed = creates ? QStringList() : linesOf(editor, dialog, false);
    if (rows != listed) {
        return difference(QStringLiteral("the grid"), rows.join(u','), listed.join(u','));
    }
    const QStringList settings = creates ? QStringList() : linesOf(editor, dialog, true);
    if (settings.size() < 6) {
        return {};
    }
    return difference(QStringLiteral("TxtHeading"), shown(dialog, "TxtHeading"), settings[3]) +
           difference(QStringLiteral("CmbSpacing"), shown(dialog, "CmbSpacing"), settings[4]) +
           difference(QStringLiteral("TxtSpeed"), shown(dialog, "TxtSpeed"), settings[5]);
}

QString selectionFault(Editor& editor, const Form& dialog)
{
    const auto* list = dialog.findChild<QListWidget*>(QStringLiteral("LstDivision"));
    QStringList rows;
    for (int row = 0; row < list->count(); ++row) {
        rows.append(list->item(row)->text());
    }
    const QStringList listed = linesOf(editor, editor.createDivisionFrm(), false);
    return difference(QStringLiteral("the list of picks"), rows.join(u','), listed.join(u','));
}

bool isInProfile(const WorkingProfile& profile, const QString& shipName)
{
    for (int n = 0; n < divisionSections; ++n) {
        for (int m = 0; m < shipSections; ++m) {
            const QString name = profile.GetIniKey(shipSection(n, m), u"NAME");
            if (isShip(name) && name == shipName) {
                return true;
            }
        }
    }
    return false;
}

/// The ship data dialog shows the first ship of its short name. A ship that the scenario hasn't, from an
/// entry that an earlier one left in the menus, leaves the dialog as it stood.
QString shipFault(Editor& editor, const Form& dialog)
{
    const WorkingProfile& profile = editor.workingProfile();
    constexpr qsizetype typeLetters = 3; // and a blank
    if (!isInProfile(profile, editor.shipDataFrm().lblShipName->text().mid(typeLetters).trimmed())) {
        return {};
    }
    const QString name = shown(dialog, "LblShrtName");
    for (int n = 0; n < divisionSections && !name.startsWith(QStringLiteral("Duncan")); ++n) {
        for (int m = 0; m < 10; ++m) {
            const QString section = shipSection(n, m);
            if (isShip(profile.GetIniKey(section, u"NAME")) &&
                profile.GetIniKey(section, u"SHORTNAME") == name) {
                const auto stored = [&](QStringView key) { return profile.GetIniKey(section, key); };
                return difference(QStringLiteral("lblShipClass"), shown(dialog, "lblShipClass"),
                                  stored(u"CLASS")) +
                       difference(QStringLiteral("LblShipNavy"), shown(dialog, "LblShipNavy"),
                                  stored(u"NAVY")) +
                       difference(QStringLiteral("lblFireCnt"), shown(dialog, "lblFireCnt"),
                                  stored(u"CURRENTFIRECOUNT"));
            }
        }
    }
    return {};
}

} // namespace

QString dialogFault(Editor& editor, const Form& dialog)
{
    if (dialog.objectName() == QStringLiteral("OverviewFrm")) {
        return scenarioFault(editor, dialog, overviewShows);
    }
    if (dialog.objectName() == QStringLiteral("EnviroFrm")) {
        return scenarioFault(editor, dialog, environmentShows);
    }
    if (const auto* division = qobject_cast<const CreateDivisionFrm*>(&dialog)) {
        return divisionFault(editor, *division);
    }
    if (dialog.objectName() == QStringLiteral("ShipDBaseFrm")) {
        return selectionFault(editor, dialog);
    }
    return dialog.objectName() == QStringLiteral("ShipDataFrm") ? shipFault(editor, dialog) : QString();
}

} // namespace torvane::testing
