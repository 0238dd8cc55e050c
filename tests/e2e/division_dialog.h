#pragma once

#include "e2e/editor_run.h"

namespace torvane::testing {

/// What an author sets in the division dialog.
struct DivisionSettings
{
    QString heading;
    int formation; ///< place in the list, from 0
    int spacing;   ///< place in the list, from 0
    QString speed;
};

/// The division dialog and its list of ships, by the keyboard. Both jobs, a new division and an edit, lead
/// the same way. Throws as `EditorRun`.
class DivisionDialog
{
public:
    /// The dialog of that title has just opened. `number` is the division's within its force.
    DivisionDialog(const EditorRun& run, const QString& title, bool forceA, int number);

    /// From a new division's dialog, and from that of an edit, to the ships.
    void openShipsOfNewDivision() const;
    void openShipsOfEdit() const;

    /// Among the ships, whose list has the focus at first and keeps it.
    void pickShip(const QString& name) const;
    /// The same by a click on the row to which the search leads, and by letters typed into the list: the name
    /// has no blank.
    void pickShipByClick(const QString& name) const;
    void pickShipByTyping(const QString& name) const;
    void removeFirstShip() const;
    /// Back to the dialog, with so many ships.
    void keepShips(int count) const;

    /// Opens the settings, changes all, and locks them again.
    void change(const DivisionSettings& settings) const;
    /// Saves the division and comes back to the main window.
    void save() const;

private:
    bool isTracked(const QString& ship) const;
    void goToShip(const QString& name) const;
    void expectPicked(const QString& name) const;
    QString file(const QString& kind) const;

    const EditorRun& m_run;
    QString m_title;
    QString m_name; ///< as files have it, such as "A1"
};

} // namespace torvane::testing
