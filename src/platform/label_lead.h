#pragma once

class QEvent;
class QObject;

namespace torvane {

/// Answers the mnemonic of a label that stands at a button or an option: it leads there, as that of a label
/// at a field does, and presses nothing. Of options that exclude one another the one that is on gets the
/// focus. Returns whether the event was such a mnemonic and is done with; `watched` is what it is sent to.
bool leadByMnemonic(QObject* watched, const QEvent* event);

} // namespace torvane
