#pragma once

#include <QStringList>

namespace torvane {

class Editor;

/// The design names of all Edit Ship entries, Force A's first.
QStringList editShipEntries();

/// What an Edit Ship entry does: opens the ship data dialog on the ship that the entry's caption names.
void editShip(Editor& editor, const QString& entry);

} // namespace torvane
