#pragma once

#include "platform/language.h"

#include <QString>

#include <span>
#include <vector>

namespace torvane {

/// One entry of the main window's menu tree.
struct MenuRow
{
    enum class Kind { Menu, Entry, Separator };

    QString name;   ///< design name, the objectName
    QString parent; ///< design name of the menu it stands in; empty for the menu bar
    Kind kind = Kind::Entry;
    QString designCaption;  ///< what it is called until a caption procedure speaks
    QString englishCaption; ///< what `setEnglishCaptions` gives it; null where that leaves it alone
    QString germanCaption;  ///< what `setGermanCaptions` gives it; null where that leaves it alone
    bool enabled = true;    ///< at the start
    bool visible = true;    ///< at the start
    bool checkable = false; ///< carries a check mark, set at the start
    QString shortcut;       ///< portable text, such as "F1"
};

/// The whole tree, parents before their children, entries in the order in which they stand.
const std::vector<MenuRow>& menuRows();

/// What the Create and Edit Division entries tell the division dialog. Its captions are not translated.
struct DivisionCommandRow
{
    const char* entry;  ///< design name of the menu entry
    const char* marker; ///< check box of the dialog that says which division is edited; null: one is created
    const char* dialogCaption;
    bool forceA;
};
/// The entries that create, then those that edit: Force A's divisions from 1 to 6, then Force B's.
std::span<const DivisionCommandRow> divisionCommandRows();
std::span<const DivisionCommandRow> editDivisionRows();

/// Reposition entries of a side by division number from 1 (the entries' own numbers run in two pieces), and
/// the key that each gives the placement.
struct RepositionRow
{
    const char* entry;
    const char* repositionKey;
};
const RepositionRow& repositionRow(bool forceA, int number);

/// Ship entries of a division: ten, but nine in the sixth.
int shipEntries(int division);
/// Design names by division and ship from 1, such as "mnuDiv1BShip10" and "mnuEditShipADiv3".
QString shipEntryName(bool forceA, int division, int ship);
QString shipDivisionName(bool forceA, int division);
/// "mnuForceA1" to "mnuForceB6".
QString editEntryName(bool forceA, int division);

} // namespace torvane
